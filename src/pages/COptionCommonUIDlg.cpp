#include "pages/COptionCommonUIDlg.h"

#include <vector>

#include "app/AppServices.h"
#include "pages/DropCommandChoices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kCommonOperationChanged = 49020;

// Puts the commands behind what the template and its translation put first, whose items get what
// they stand for as their data.
void AddCommands(const ui::ComboBox& combo, const std::vector<DropChoice>& commands) {
    const ui::RedrawPaused paused(combo);
    const int shellItems = combo.GetCount();
    for (int index = 0; index < shellItems; ++index) combo.SetItemData(index, ShellDropCommand(index));
    for (const DropChoice& choice : commands) {
        const int index = combo.AddString(choice.text);
        if (index >= 0) combo.SetItemData(index, choice.command);
    }
}

void ShowChoice(const ui::ComboBox& combo, int32_t stored) {
    std::vector<int32_t> itemCommands;
    for (int index = 0, count = combo.GetCount(); index < count; ++index) {
        itemCommands.push_back(static_cast<int32_t>(combo.GetItemData(index)));
    }
    combo.SetCurSel(SelectDropChoice(itemCommands, stored));
}

// The command of the selected choice; the stored value stays when nothing is selected.
void TakeChoice(const ui::ComboBox& combo, int32_t& stored) {
    const int index = combo.GetCurSel();
    if (index >= 0) stored = static_cast<int32_t>(combo.GetItemData(index));
}

}  // namespace

COptionCommonUIDlg::COptionCommonUIDlg(AppServices& app) : OptionPage(IDD_OPTION_COMMON_UI, app) {}

bool COptionCommonUIDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::CommonOperation);
    // Once, after the translation of the template's items: the data exchange only selects.
    const std::vector<DropChoice> commands = DropCommands(app().commands);
    AddCommands(ui::ComboBox(Item(IDC_COMMON_UI_DROP_COPY)), commands);
    AddCommands(ui::ComboBox(Item(IDC_COMMON_UI_DROP_MOVE)), commands);
    return true;
}

void COptionCommonUIDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_COMMON_UI_DROP_FOLDER, store.DropFolder);
    DDX_Check(exchange, IDC_COMMON_UI_CAN_DRAG, store.CanDrag);
    DDX_Check(exchange, IDC_COMMON_UI_INPLACE_RENAME, store.InplaceRename);
    DDX_Check(exchange, IDC_COMMON_UI_SMART_PASTE, store.SmartPaste);
    const ui::ComboBox copy(exchange.PrepareControl(IDC_COMMON_UI_DROP_COPY));
    const ui::ComboBox move(exchange.PrepareControl(IDC_COMMON_UI_DROP_MOVE));
    if (exchange.saving()) {
        TakeChoice(copy, store.DropExCommand0);
        TakeChoice(move, store.DropExCommand1);
        return;
    }
    ShowChoice(copy, store.DropExCommand0);
    ShowChoice(move, store.DropExCommand1);
    EnableDropCommands();
}

// What a drop runs matters only when dropping is allowed.
void COptionCommonUIDlg::EnableDropCommands() const {
    const bool drop = ui::Button(Item(IDC_COMMON_UI_DROP_FOLDER)).IsChecked();
    EnableWindow(Item(IDC_COMMON_UI_DROP_COPY), drop);
    EnableWindow(Item(IDC_COMMON_UI_DROP_MOVE), drop);
}

bool COptionCommonUIDlg::OnCommand(int id, int code) {
    if (id != IDC_COMMON_UI_DROP_FOLDER || code != BN_CLICKED) return false;
    EnableDropCommands();
    return true;
}

bool COptionCommonUIDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::CommonOperation);
    changes.Record(kCommonOperationChanged);
    return true;
}
