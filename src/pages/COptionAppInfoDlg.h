// The general page: how the host behaves at large, and the threshold of its list sort with the
// benchmark that finds the best one on this machine.
#pragma once

#include "app/OptionPage.h"

class COptionAppInfoDlg : public OptionPage {
public:
    explicit COptionAppInfoDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
