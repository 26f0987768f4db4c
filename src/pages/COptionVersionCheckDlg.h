// How often the host looks for a newer version, and when it last did.
#pragma once

#include "app/OptionPage.h"

class COptionVersionCheckDlg : public OptionPage {
public:
    explicit COptionVersionCheckDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void ShowLastCheck() const;
    void ResetLastCheck();
};
