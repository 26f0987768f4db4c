// The bar of recently closed folders: how many it keeps and how it shows them.
#pragma once

#include "app/OptionPage.h"

class COptionRecentDlg : public OptionPage {
public:
    explicit COptionRecentDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
