// The address bar page: what a double click on the address bar does, and whether its choices list
// files too.
#pragma once

#include "app/OptionPage.h"

class COptionListAddressbarDlg : public OptionPage {
public:
    explicit COptionListAddressbarDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
