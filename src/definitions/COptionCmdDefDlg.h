// The command definition page: one button for each of the six command lists, each opened the way the
// page's edit mode says.
#pragma once

#include <cstdint>

#include "app/OptionPage.h"

class COptionCmdDefDlg : public OptionPage {
public:
    explicit COptionCmdDefDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;

private:
    void Edit(const wchar_t* listName);

    int32_t editMode_ = 0;
};
