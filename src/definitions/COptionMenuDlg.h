// The menu page: the files of the user's menu folder with their descriptions, each opened for
// editing the way the page's edit mode says.
#pragma once

#include <cstdint>

#include "app/OptionPage.h"
#include "ui/ListView.h"

class COptionMenuDlg : public OptionPage {
public:
    explicit COptionMenuDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    void EditSelected();

    ui::ListView list_;
    int32_t editMode_ = 0;
};
