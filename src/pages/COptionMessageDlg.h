// Which confirmations the host shows: one check row per confirmation, from the "Message" bits.
#pragma once

#include "app/OptionPage.h"
#include "pages/ConfirmationChecks.h"
#include "ui/ListView.h"

class COptionMessageDlg : public OptionPage {
public:
    explicit COptionMessageDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void ShowChecks(const ConfirmationChecks& checks) const;

    ui::ListView list_;
};
