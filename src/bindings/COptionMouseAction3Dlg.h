// The wheel: Alt with the wheel switching views, or a script per combination of held buttons and
// keys and the wheel's direction. The page's boxes only compose a script's name for the user.
#pragma once

#include <array>
#include <cstdint>

#include "app/OptionPage.h"
#include "bindings/WheelScript.h"

class COptionMouseAction3Dlg : public OptionPage {
public:
    explicit COptionMouseAction3Dlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;

private:
    uint32_t Boxes() const;
    void ShowState() const;

    std::array<int32_t, kWheelBoxes> boxes_{};
};
