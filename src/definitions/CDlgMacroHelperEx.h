// The macro helper: a chooser of macros, paths and fixed words for the dialogs that edit a command
// line or a path. The caller sets the starting tab and which tabs may be used, runs DoModal, and on OK
// inserts a non-empty result. Each tab lists one data file beside the program.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>

#include "ui/Dialog.h"
#include "ui/ListView.h"

struct AppServices;

class CDlgMacroHelperEx : public ui::Dialog {
public:
    explicit CDlgMacroHelperEx(AppServices& app);

    // In and out: the tab, a MacroHelperMode.
    int32_t mode = 0;
    // The tabs the user may switch to, by mode.
    std::array<bool, 6> enabled{};
    // At OK: the macro of the selected row, empty when none was selected.
    std::wstring result;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    void OnOK() override;

private:
    void FillList();

    AppServices& app_;
    ui::ListView list_;
};
