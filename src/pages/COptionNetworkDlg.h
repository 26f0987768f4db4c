// How the host treats network folders: an optional ping before opening one, with its time-out and
// retries.
#pragma once

#include "app/OptionPage.h"

class COptionNetworkDlg : public OptionPage {
public:
    explicit COptionNetworkDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnablePingFields() const;
};
