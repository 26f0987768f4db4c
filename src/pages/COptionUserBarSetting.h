// One user bar's slot: its name, the folder under "Bar" that holds its items, and the width of an
// item's text. The folder must already be there.
#pragma once

#include <cstdint>
#include <string>

#include "ui/Dialog.h"

struct AppServices;

class COptionUserBarSetting : public ui::Dialog {
public:
    explicit COptionUserBarSetting(AppServices& app);

    std::wstring name;
    std::wstring dir;
    uint32_t width = 100;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    void OnOK() override;

private:
    AppServices& app_;
};
