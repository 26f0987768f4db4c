// The form of the host's title bar. The host takes it at its next start, so Apply tells it nothing.
#pragma once

#include "app/OptionPage.h"

class COptionOverallStyleDlg : public OptionPage {
public:
    explicit COptionOverallStyleDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    void OnCancel() override;
};
