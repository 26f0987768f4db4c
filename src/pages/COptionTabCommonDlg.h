// What the tab bar and the window management bar share: reuse and closing of tabs with the same
// folder, the look, restoring the tabs at start, and which command a click on a tab runs.
#pragma once

#include "app/OptionPage.h"
#include "pages/ClickTable.h"
#include "ui/ListView.h"

class COptionTabCommonDlg : public OptionPage {
public:
    explicit COptionTabCommonDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    void FillList();
    void ShowRow(int row) const;
    void ChangeRow();
    void EnableRestoreChecks() const;

    ui::ListView list_;
    ClickTable table_;
};
