#include "pages/COptionCommonUIDlg.h"

#include "app/AppServices.h"
#include "pages/DropCommandChoices.h"
#include "resources/resource.h"
#include "settings/ApplicationGroups.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kCommonOperationChanged = 49020;

// Fills the combo and selects the choice of the stored command.
void ShowChoices(const ui::ComboBox& combo, const DropChoices& choices) {
    combo.ResetContent();
    for (const DropChoice& choice : choices.items) {
        const int index = combo.AddString(choice.text);
        if (index >= 0) combo.SetItemData(index, choice.command);
    }
    combo.SetCurSel(choices.selected);
}

// The command of the selected choice; the stored value stays when nothing is selected.
void TakeChoice(const ui::ComboBox& combo, int32_t& stored) {
    const int index = combo.GetCurSel();
    if (index >= 0) stored = static_cast<int32_t>(combo.GetItemData(index));
}

}  // namespace

COptionCommonUIDlg::COptionCommonUIDlg(AppServices& app) : OptionPage(IDD_OPTION_COMMON_UI, app) {}

void COptionCommonUIDlg::LoadGroups() {
    LoadGroup(app().store, AppGroup::CommonOperation);
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
    ShowChoices(copy, MakeDropChoices(DropKind::Copy, app().commands, store.DropExCommand0));
    ShowChoices(move, MakeDropChoices(DropKind::Move, app().commands, store.DropExCommand1));
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
    SaveGroup(app().store, AppGroup::CommonOperation);
    changes.Record(kCommonOperationChanged);
    return true;
}
