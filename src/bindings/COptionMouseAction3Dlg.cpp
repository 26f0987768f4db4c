#include "bindings/COptionMouseAction3Dlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kWheelChanged = 49040;
constexpr int kLastBox = IDC_WHEEL_FIRST_BOX + kWheelBoxes - 1;

}  // namespace

COptionMouseAction3Dlg::COptionMouseAction3Dlg(AppServices& app) : OptionPage(IDD_OPTION_MOUSE_ACTION3, app) {}

bool COptionMouseAction3Dlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListClicks);
    return true;
}

void COptionMouseAction3Dlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_WHEEL_USE_SCRIPTS, app().store.UseWheelCmd);
    DDX_Check(exchange, IDC_WHEEL_ALT, app().store.AltWheel);
    for (int box = 0; box < kWheelBoxes; ++box) DDX_Check(exchange, IDC_WHEEL_FIRST_BOX + box, boxes_[box]);
    if (!exchange.saving()) ShowState();
}

uint32_t COptionMouseAction3Dlg::Boxes() const {
    uint32_t boxes = 0;
    for (int box = 0; box < kWheelBoxes; ++box) {
        if (boxes_[box]) boxes |= 1u << box;
    }
    return boxes;
}

void COptionMouseAction3Dlg::ShowState() const {
    const bool scripts = app().store.UseWheelCmd == 1;
    EnableWindow(Item(IDC_WHEEL_TEST), WheelScriptTestable(app().store.UseWheelCmd, Boxes()));
    EnableWindow(Item(IDC_WHEEL_ALT), !scripts);
    for (int id = IDC_WHEEL_FIRST_BOX; id <= kLastBox; ++id) EnableWindow(Item(id), scripts);
    SetDlgItemTextW(hwnd(), IDC_WHEEL_NAME, WheelScriptName(Boxes()).c_str());
}

bool COptionMouseAction3Dlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id == IDC_WHEEL_USE_SCRIPTS || id == IDC_WHEEL_USE_SCRIPTS + 1 ||
        (id >= IDC_WHEEL_FIRST_BOX && id <= kLastBox)) {
        if (UpdateData(true)) ShowState();
        return true;
    }
    if (id != IDC_WHEEL_TEST) return false;
    if (UpdateData(true)) OpenWheelScript(app(), WheelScriptName(Boxes()));
    return true;
}

// The two values go into whichever section the step before left selected, without selecting one;
// they are read from "ListMouse", so they reach the host only when that section was left selected.
bool COptionMouseAction3Dlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveWheelValues(app().store);
    changes.Record(kWheelChanged);
    return true;
}
