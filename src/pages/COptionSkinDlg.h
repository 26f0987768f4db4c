// The icon skin and the progress images of the status bar, each chosen from the installed folders
// with the folder's readme beside the list, the background's transparency, and the background
// picture through its own dialog.
#pragma once

#include "app/OptionPage.h"

class COptionSkinDlg : public OptionPage {
public:
    explicit COptionSkinDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void ChooseBackground();
};
