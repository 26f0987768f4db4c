// The split list page: how the two lists side by side are laid out and move together.
#pragma once

#include "app/OptionPage.h"

class COptionDivListDlg : public OptionPage {
public:
    explicit COptionDivListDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
