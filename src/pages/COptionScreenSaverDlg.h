// The idle animation: which installed set, how long the host waits before it starts, how many
// sprites it draws and where.
#pragma once

#include "app/OptionPage.h"

class COptionScreenSaverDlg : public OptionPage {
public:
    explicit COptionScreenSaverDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
