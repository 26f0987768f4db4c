// How the custom sort compares names: the comparison flags the host hands to the system.
#pragma once

#include "app/OptionPage.h"

class COptionCustomSort : public OptionPage {
public:
    explicit COptionCustomSort(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
