// The script page: the user's editor, binary editor and viewer scripts at a click, or every file of
// the script folder in a list; each is opened the way the page's edit mode says. The program's own
// editor takes a run or extension-run definition; any other script goes to the editor script.
#pragma once

#include <cstdint>
#include <string>

#include "app/OptionPage.h"
#include "ui/ListView.h"

class COptionExToolDlg : public OptionPage {
public:
    explicit COptionExToolDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    void ShowView();
    void OpenScript(const std::wstring& name);
    void EditSelected();

    ui::ListView list_;
    int32_t editMode_ = 0;
    int32_t showAll_ = 0;
};
