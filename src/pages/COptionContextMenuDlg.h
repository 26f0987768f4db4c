// The context menu page: for each place a menu opens, which items it offers and in what order.
#pragma once

#include "app/OptionPage.h"

class COptionContextMenuDlg : public OptionPage {
public:
    explicit COptionContextMenuDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableChecks() const;
};
