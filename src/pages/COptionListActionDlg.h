// How the file list behaves: links, the navigation lock, tips, selection, and how the shell runs items.
#pragma once

#include "app/OptionPage.h"

class COptionListActionDlg : public OptionPage {
public:
    explicit COptionListActionDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
