// The look of the list in each view: details, columns and tiles, and which views show real names.
#pragma once

#include "app/OptionPage.h"

class COptionListModeStyleDlg : public OptionPage {
public:
    explicit COptionListModeStyleDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
