// How a new file list starts: its view, icon size and sort order, its folder, and whether the tree
// inside the list shows.
#pragma once

#include <cstdint>

#include "app/OptionPage.h"
#include "ui/BrowseEdit.h"
#include "ui/ListView.h"

class COptionListInitDlg : public OptionPage {
public:
    explicit COptionListInitDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    ui::ListView sortList_;  // without a window when its labels were wrong
    ui::BrowseEdit initPath_;
    int32_t viewRadio_ = 0;
};
