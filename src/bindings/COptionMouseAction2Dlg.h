// The scripts run by clicks on the blank area of the file list: four file names of the user's
// Script folder, each typed or chosen.
#pragma once

#include "app/OptionPage.h"

class COptionMouseAction2Dlg : public OptionPage {
public:
    explicit COptionMouseAction2Dlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;

private:
    void ChooseScript(int slot);
};
