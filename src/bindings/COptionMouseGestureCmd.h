// One gesture: a trail composed from the four arrow buttons, and the command it starts, chosen with
// the command picker. OK is taken only when both are there.
#pragma once

#include <cstdint>
#include <string>

#include "ui/Dialog.h"

struct AppServices;

class COptionMouseGestureCmd : public ui::Dialog {
public:
    explicit COptionMouseGestureCmd(AppServices& app);

    // In and out: the trail in arrows, the command's text and its identifier.
    std::wstring trail;
    std::wstring commandText;
    uint32_t commandId = 0;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    void PickCommand();

    AppServices& app_;
};
