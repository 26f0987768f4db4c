// The status area page: which parts of the list's status bar the host shows, and the templates of
// its text, with the macro helper for each and three presets.
#pragma once

#include "app/OptionPage.h"
#include "pages/StatusTemplates.h"

class COptionListStateDlg : public OptionPage {
public:
    explicit COptionListStateDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void ShowPreset(StatusPreset preset) const;
};
