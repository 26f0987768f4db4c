// The filter bar page: how soon the list follows what is typed into the filter, and how the typed
// text is understood.
#pragma once

#include "app/OptionPage.h"

class COptionListBarDlg : public OptionPage {
public:
    explicit COptionListBarDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
