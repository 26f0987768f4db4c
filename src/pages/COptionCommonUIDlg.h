// Common operation: dropping, dragging, renaming in place and pasting, with the commands a drop runs.
#pragma once

#include "app/OptionPage.h"

class COptionCommonUIDlg : public OptionPage {
public:
    explicit COptionCommonUIDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableDropCommands() const;
};
