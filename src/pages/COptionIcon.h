// How the file list gets its icons and overlays, and how long it waits for them.
#pragma once

#include "app/OptionPage.h"

class COptionIcon : public OptionPage {
public:
    explicit COptionIcon(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
