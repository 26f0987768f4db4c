// The page of what all external commands share: how their windows show, what happens when one ends,
// and which panes are their targets.
#pragma once

#include "app/OptionPage.h"

class COptionExCmdDlg : public OptionPage {
public:
    explicit COptionExCmdDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
