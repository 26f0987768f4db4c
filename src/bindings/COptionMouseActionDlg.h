// What a click on an item of the file list does, by button and modifier, and whether pointing
// selects. The list shows the table in three groups; the values are written at Apply.
#pragma once

#include <string>
#include <vector>

#include "app/OptionPage.h"
#include "pages/ClickTable.h"
#include "ui/ListView.h"

class COptionMouseActionDlg : public OptionPage {
public:
    explicit COptionMouseActionDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    bool MakeTable();
    void FillList();
    void ShowRow(int row) const;
    void ChangeRow();

    ui::ListView list_;
    ClickTable table_;
    std::vector<std::wstring> groupNames_;
};
