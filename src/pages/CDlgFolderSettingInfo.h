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

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    void FillSortList();
    void Browse();

    AppServices& app_;
    ui::ListView sortList_;
    int32_t viewRadio_ = 0;
};
