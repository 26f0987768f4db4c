#include "bindings/COptionMouseGestureDlg.h"

#include <vector>

#include "app/AppServices.h"
#include "bindings/COptionMouseGestureCmd.h"
#include "bindings/GestureTable.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/DataExchange.h"
#include "ui/Spin.h"

namespace {

constexpr uint16_t kGesturesChanged = 49016;
constexpr int kTrailColumnWidth = 120;
constexpr int kCommandColumnWidth = 300;
// The controls that only matter while gestures are on.
constexpr int kTableControls[] = {IDC_GESTURE_DEFAULTS, IDC_GESTURE_ADD,         IDC_GESTURE_EDIT,  IDC_GESTURE_DELETE,
                                  IDC_GESTURE_LIST,     IDC_GESTURE_SENSITIVITY, IDC_GESTURE_COLOUR};

platform::Prompts& Prompts() {
    return platform::Current().prompts;
}

}  // namespace

COptionMouseGestureDlg::COptionMouseGestureDlg(AppServices& app) : OptionPage(IDD_OPTION_MOUSE_GESTURE, app) {}

bool COptionMouseGestureDlg::OnInitDialog() {
    const bool focusFirst = OptionPage::OnInitDialog();
    const SettingRange range = RangeOf(&SettingsStore::GestureSensitivity);
    ui::Spin(Item(IDC_GESTURE_SENSITIVITY_SPIN)).SetRange(range.low, range.high);
    return focusFirst;
}

bool COptionMouseGestureDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Gesture);
    colour_ = ui::ColourButton(hwnd(), IDC_GESTURE_COLOUR);
    colour_.SetColour(static_cast<uint32_t>(app().store.GestureCol));
    list_ = ui::ListView(Item(IDC_GESTURE_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, L"Command", kTrailColumnWidth);
    list_.InsertColumn(1, L"Function", kCommandColumnWidth);
    for (const GestureBinding& row : ReadGestureTable()) InsertRow(row.trail, row.command);
    return true;
}

void COptionMouseGestureDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_GESTURE_TRIGGER, app().store.Gesture);
    ExchangeUnsignedSetting(exchange, IDC_GESTURE_SENSITIVITY, &SettingsStore::GestureSensitivity);
    if (!exchange.saving()) EnableByTrigger();
}

// Off keeps the table as it is; it only cannot be changed.
void COptionMouseGestureDlg::EnableByTrigger() const {
    const bool on = !ui::Button(Item(IDC_GESTURE_TRIGGER)).IsChecked();
    for (int id : kTableControls) EnableWindow(Item(id), on);
}

int COptionMouseGestureDlg::FindTrail(const std::wstring& trail) const {
    LVFINDINFOW find{};
    find.flags = LVFI_STRING;
    find.psz = trail.c_str();
    return static_cast<int>(list_.Send(LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&find)));
}

// The list keeps its rows sorted by trail, so a new row goes wherever its text puts it.
void COptionMouseGestureDlg::InsertRow(const std::wstring& trail, uint32_t command) const {
    const int row = list_.InsertItem(list_.GetItemCount(), trail);
    if (row >= 0) SetCommand(row, command);
}

void COptionMouseGestureDlg::SetCommand(int row, uint32_t command) const {
    list_.SetItemText(row, 1,
                      app().commands.GetCommandString(static_cast<uint16_t>(command), app().resourceModule.get()));
    list_.SetItemData(row, static_cast<LPARAM>(command));
}

void COptionMouseGestureDlg::Tell(uint16_t message) const {
    Prompts().ShowMessage(app().messages.Get(message), platform::kStyleOk);
}

void COptionMouseGestureDlg::AddRow() {
    if (!UpdateData(true)) return;
    if (list_.GetItemCount() > kMaxGestureRows) {
        Tell(kMsgListFull);
        return;
    }
    COptionMouseGestureCmd dialog(app());
    if (dialog.DoModal(hwnd()) != IDOK) return;
    if (FindTrail(dialog.trail) >= 0) {
        Tell(kMsgAlreadyListed);
        return;
    }
    InsertRow(dialog.trail, dialog.commandId);
    SetFocus(list_.hwnd());
}

// The row's own trail is blanked while the dialog is open, so that keeping it is no duplicate.
void COptionMouseGestureDlg::EditRow() {
    const int row = list_.GetSelectedRow();
    if (row < 0) {
        Tell(kMsgNothingSelected);
        return;
    }
    COptionMouseGestureCmd dialog(app());
    const std::wstring oldTrail = list_.GetItemText(row, 0);
    dialog.trail = oldTrail;
    dialog.commandText = list_.GetItemText(row, 1);
    dialog.commandId = static_cast<uint32_t>(list_.GetItemData(row));
    list_.SetItemText(row, 0, L"");
    if (dialog.DoModal(hwnd()) != IDOK) {
        list_.SetItemText(row, 0, oldTrail);
        SetFocus(list_.hwnd());
        return;
    }
    if (FindTrail(dialog.trail) >= 0) {
        list_.SetItemText(row, 0, oldTrail);
        Tell(kMsgAlreadyListed);
        return;
    }
    list_.SetItemText(row, 0, dialog.trail);
    SetCommand(row, dialog.commandId);
    SetFocus(list_.hwnd());
}

void COptionMouseGestureDlg::DeleteRow() {
    const int row = list_.GetSelectedRow();
    if (row < 0)
        Tell(kMsgNothingSelected);
    else
        list_.DeleteItem(row);
}

// The table is emptied first, so none of its rows can clash with a default or fill it up.
void COptionMouseGestureDlg::SetDefaults() {
    if (Prompts().ShowMessage(app().messages.Get(kMsgGestureResetQuestion), platform::kStyleYesNo) !=
        platform::kAnswerYes)
        return;
    list_.DeleteAllItems();
    for (const GestureBinding& binding : DefaultGestureTable()) InsertRow(binding.trail, binding.command);
}

bool COptionMouseGestureDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id >= IDC_GESTURE_TRIGGER && id < IDC_GESTURE_TRIGGER + 4) {
        EnableByTrigger();
        return true;
    }
    switch (id) {
        case IDC_GESTURE_COLOUR:
            colour_.Choose();
            return true;
        case IDC_GESTURE_ADD:
            AddRow();
            return true;
        case IDC_GESTURE_EDIT:
            EditRow();
            return true;
        case IDC_GESTURE_DELETE:
            DeleteRow();
            return true;
        case IDC_GESTURE_DEFAULTS:
            SetDefaults();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionMouseGestureDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_GESTURE_LIST || header.code != NM_DBLCLK) return std::nullopt;
    EditRow();
    return 0;
}

std::optional<LRESULT> COptionMouseGestureDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == IDC_GESTURE_COLOUR) {
        colour_.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return OptionPage::OnMessage(message, wParam, lParam);
}

bool COptionMouseGestureDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    app().store.GestureCol = static_cast<int32_t>(colour_.colour());
    SaveGroup(app().store, SettingsGroup::Gesture);
    std::vector<GestureBinding> table;
    for (int row = 0; row < list_.GetItemCount(); ++row)
        table.push_back({list_.GetItemText(row, 0), static_cast<uint32_t>(list_.GetItemData(row))});
    WriteGestureTable(app().store, table);
    changes.Record(kGesturesChanged);
    return true;
}
