#include "bindings/COptionMouseGestureCmd.h"

#include "app/AppServices.h"
#include "bindings/COptionKeySetting.h"
#include "bindings/GestureTable.h"
#include "resources/pages/PageIds.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kMaxTrailField = 50;

struct ArrowButton {
    int id;
    wchar_t arrow;
};
constexpr ArrowButton kArrowButtons[] = {{IDC_GESTURE_UP, kArrowUp},
                                         {IDC_GESTURE_LEFT, kArrowLeft},
                                         {IDC_GESTURE_RIGHT, kArrowRight},
                                         {IDC_GESTURE_DOWN, kArrowDown}};

}  // namespace

COptionMouseGestureCmd::COptionMouseGestureCmd(AppServices& app) : ui::Dialog(IDD_GESTURE_COMMAND), app_(app) {}

bool COptionMouseGestureCmd::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void COptionMouseGestureCmd::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_GESTURE_TRAIL, trail);
    DDV_MaxChars(exchange, trail, kMaxTrailField);
    DDX_Text(exchange, IDC_GESTURE_COMMAND_TEXT, commandText);
}

void COptionMouseGestureCmd::PickCommand() {
    COptionKeySetting& picker = COptionKeySetting::Shared(app_);
    picker.currentId = commandId;
    picker.barCommandsWanted = false;
    if (picker.DoModal(hwnd()) != IDOK) return;
    commandId = picker.currentId;
    commandText = app_.commands.GetCommandString(static_cast<uint16_t>(commandId), app_.resourceModule.get());
    UpdateData(false);
}

bool COptionMouseGestureCmd::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    for (const ArrowButton& button : kArrowButtons) {
        if (id != button.id) continue;
        if (UpdateData(true)) {
            AppendDirection(trail, button.arrow);
            UpdateData(false);
        }
        return true;
    }
    switch (id) {
        case IDC_GESTURE_BACKSPACE:
            if (UpdateData(true)) {
                RemoveLastDirection(trail);
                UpdateData(false);
            }
            return true;
        case IDC_GESTURE_PICK:
            PickCommand();
            return true;
        default:
            return false;
    }
}

// Without a trail or a command there is nothing to bind; the dialog waits for both without a word.
void COptionMouseGestureCmd::OnOK() {
    if (!UpdateData(true)) return;
    if (commandId == 0 || commandText == CommandCatalog::kNoCommandText || trail.empty()) return;
    EndDialog(IDOK);
}
