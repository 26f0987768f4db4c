// Automatic update of the file list: how folders are watched, when watching stops, and the folders
// it leaves alone.
#pragma once

#include <string>

#include "app/OptionPage.h"

class COptionListAutoUpdateDlg : public OptionPage {
public:
    explicit COptionListAutoUpdateDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void AddExclusion();
    void EditExclusion();
    void DeleteExclusion();
    // The folder the user typed, as the list keeps it; empty when cancelled or nothing was typed.
    std::wstring AskFolder(const std::wstring& start);
    // The selected row; -1 after telling the user that none is.
    int SelectedRow();
};
