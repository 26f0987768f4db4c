// Where the user's files live, single start, the tray, and how many scripts may run at once.
#pragma once

#include "app/OptionPage.h"

class COptionOtherDlg : public OptionPage {
public:
    explicit COptionOtherDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnInitDialog() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableChosenFolder() const;
    void BrowseUserDirectory() const;
};
