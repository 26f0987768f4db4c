// The tab bar's look (size of a tab, bold, close button, lines, flashing, drive letters) and where
// new tabs go.
#pragma once

#include "app/OptionPage.h"

class COptionTabStyleDlg : public OptionPage {
public:
    explicit COptionTabStyleDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
};
