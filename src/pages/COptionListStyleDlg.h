// How every view of the file list shows sizes and dates, what it lists, and how many items at most.
#pragma once

#include "app/OptionPage.h"

class COptionListStyleDlg : public OptionPage {
public:
    explicit COptionListStyleDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableUnitChecks() const;
};
