// The chooser of one click action: the row's text above, the actions in a drop-down list.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/Dialog.h"

struct AppServices;
class ClickTable;

class CDlgMouseSet : public ui::Dialog {
public:
    CDlgMouseSet(AppServices& app, const std::vector<std::wstring>& actions);

    // In: the row's text and its action; out at OK: the action chosen.
    std::wstring rowText;
    int32_t action = 0;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    AppServices& app_;
    const std::vector<std::wstring>& actions_;
};

// The change button of a click table's page: the chooser opened on the row, its choice set into the
// table. "Nothing selected" when row is -1. True when the row took a new action.
bool ChooseRowAction(AppServices& app, HWND owner, ClickTable& table, int row);
