// The editor of one folder rule: the path and its kind, the view, the icon size and the sort order
// the host shows for the folders the rule matches. The caller fills the members before DoModal and
// reads them after OK.
#pragma once

#include <cstdint>

#include "pages/FolderState.h"
#include "ui/Dialog.h"
#include "ui/ListView.h"

struct AppServices;

class CDlgFolderSettingInfo : public ui::Dialog {
public:
    explicit CDlgFolderSettingInfo(AppServices& app);

    FolderState rule;
    int32_t kind = 0;    // 0 exact path, 1 wildcard, 2 regular expression
    int32_t locked = 0;  // the kind stays as the caller gave it

    // The sort list, which the list's initial page shows too: the built-in orders named by the hidden
    // label labelsId, then the columns the host shows, then the rest, each under its heading. The row
    // of key is selected and focused; a key no row has (a column the shell no longer gives) selects
    // nothing. False when the hidden label has the wrong count: the user is told and the list stays
    // empty.
    static bool ShowSortList(AppServices& app, const ui::ListView& list, HWND labels, int32_t key);

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    void Browse();

    AppServices& app_;
    ui::ListView sortList_;
    int32_t viewRadio_ = 0;
};
