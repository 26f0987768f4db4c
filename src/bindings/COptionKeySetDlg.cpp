#include "bindings/COptionKeySetDlg.h"

#include <vector>

#include "app/AppServices.h"
#include "bindings/COptionKeySetting.h"
#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyListCsv.h"
#include "bindings/KeyTableFiles.h"
#include "platform/Platform.h"
#include "resources/bindings/BindingIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "services/PathHelpers.h"
#include "settings/SettingsGroups.h"
#include "ui/ComboBox.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kKeysChanged = 49009;
constexpr int kKeyColumnWidth = 40;
constexpr int kCommandColumnWidth = 320;

platform::Prompts& Prompts() {
    return platform::Current().prompts;
}

}  // namespace

COptionKeySetDlg::COptionKeySetDlg(AppServices& app) : OptionPage(IDD_OPTION_KEYSET, app) {}

bool COptionKeySetDlg::LoadGroups() {
    LoadKeyTables(app().directories.UserDirectory(), app().keys);
    std::vector<std::wstring> headers, sets, targets;
    ui::SplitControlText(Item(IDC_KEYSET_HEADERS), headers);
    ui::SplitControlText(Item(IDC_KEYSET_SET_NAMES), sets);
    ui::SplitControlText(Item(IDC_KEYSET_SWITCH_NAMES), targets);
    if (!CheckLabelCount(2, headers, IDC_KEYSET_HEADERS) ||
        !CheckLabelCount(kKeyModeCount, sets, IDC_KEYSET_SET_NAMES) ||
        !CheckLabelCount(kKeyModeCount + 1, targets, IDC_KEYSET_SWITCH_NAMES))
        return false;
    list_ = ui::ListView(Item(IDC_KEYSET_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, headers[0], kKeyColumnWidth);
    list_.InsertColumn(1, headers[1], kCommandColumnWidth);
    for (const std::wstring& name : sets) ui::ComboBox(Item(IDC_KEYSET_SET)).AddString(name);
    for (const std::wstring& name : targets) ui::ComboBox(Item(IDC_KEYSET_SWITCH_TARGET)).AddString(name);
    LoadGroup(app().store, SettingsGroup::KeyPage);
    set_ = app().store.KeyLayout == 1 ? 1 : 0;
    modifier_ = kModifierNone;
    ShowBlock();
    return true;
}

void COptionKeySetDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_CBIndex(exchange, IDC_KEYSET_SET, set_);
    DDX_Radio(exchange, IDC_KEYSET_MODIFIER_FIRST, modifier_);
    DDX_CBIndex(exchange, IDC_KEYSET_SWITCH_TARGET, store.AutoSwitchAllocKey);
    ExchangeUnsignedSetting(exchange, IDC_KEYSET_SWITCH_TIME, &SettingsStore::AutoSwitchAllocKeyTime);
    if (!exchange.saving()) EnableSwitchTime();
}

void COptionKeySetDlg::EnableSwitchTime() const {
    EnableWindow(Item(IDC_KEYSET_SWITCH_TIME), ui::ComboBox(Item(IDC_KEYSET_SWITCH_TARGET)).GetCurSel() > 0);
}

void COptionKeySetDlg::ShowRow(int row, uint16_t id) const {
    list_.SetItemText(row, 1, app().commands.GetCommandString(id, app().resourceModule.get()));
    list_.SetItemData(row, id);
}

// The 76 rows are made once; a block switch only rewrites their commands, without drawing between.
void COptionKeySetDlg::ShowBlock() {
    SendMessageW(list_.hwnd(), WM_SETREDRAW, FALSE, 0);
    for (int key = list_.GetItemCount(); key < kKeyCount; ++key) list_.InsertItem(key, KeyNameTable[key]);
    for (int key = 0; key < kKeyCount; ++key) ShowRow(key, app().keys.Word(set_, modifier_, key));
    SendMessageW(list_.hwnd(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list_.hwnd(), nullptr, FALSE);
}

// The rows' identifiers go back into the block shown.
void COptionKeySetDlg::StoreList() {
    for (int key = 0; key < kKeyCount && key < list_.GetItemCount(); ++key)
        app().keys.Word(set_, modifier_, key) = static_cast<uint16_t>(list_.GetItemData(key));
}

void COptionKeySetDlg::ChangeBlock() {
    const int row = list_.GetSelectedRow();
    StoreList();
    if (!UpdateData(true)) return;
    ShowBlock();
    if (row >= 0) list_.SelectRow(row);
}

int COptionKeySetDlg::SelectedRowOrTell() const {
    const int row = list_.GetSelectedRow();
    if (row < 0) Prompts().ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
    return row;
}

bool COptionKeySetDlg::AskReset() const {
    return Prompts().ShowMessage(app().messages.Get(kMsgResetQuestion), platform::kStyleYesNo) == platform::kAnswerYes;
}

void COptionKeySetDlg::EditRow() {
    const int row = SelectedRowOrTell();
    if (row < 0) return;
    COptionKeySetting& picker = COptionKeySetting::Shared(app());
    picker.currentId = static_cast<uint32_t>(list_.GetItemData(row));
    picker.barCommandsWanted = false;
    if (picker.DoModal(hwnd()) == IDOK) ShowRow(row, static_cast<uint16_t>(picker.currentId));
    SetFocus(list_.hwnd());
}

void COptionKeySetDlg::ClearRow() {
    const int row = SelectedRowOrTell();
    if (row < 0 || list_.GetItemData(row) == 0) return;
    const std::wstring question = app().messages.Get(kMsgDeleteRowQuestion) + L"\n" + list_.GetItemText(row, 0) + L":" +
                                  list_.GetItemText(row, 1);
    if (Prompts().ShowMessage(question, platform::kStyleYesNo) == platform::kAnswerYes) ShowRow(row, kNoCommand);
}

// The block shown, as text, into a folder the user picks; an existing file is replaced without asking.
void COptionKeySetDlg::SaveList() {
    if (!UpdateData(true)) return;
    StoreList();
    platform::FolderChoice choice = Prompts().BrowseForFolder(app().messages.Get(kMsgFolderBrowserTitle), lastFolder_);
    if (!choice.confirmed) return;
    lastFolder_ = choice.path;
    WriteKeyListCsv(AddSeparator(choice.path) + PageKeyListName(set_, modifier_), app().keys.Block(set_, modifier_),
                    app().commands, app().resourceModule.get());
}

bool COptionKeySetDlg::OnCommand(int id, int code) {
    const KeyTableSet& defaults = DefaultKeyTables();
    if (id == IDC_KEYSET_SET && code == CBN_SELCHANGE) {
        ChangeBlock();
        return true;
    }
    if (id == IDC_KEYSET_SWITCH_TARGET && code == CBN_SELCHANGE) {
        UpdateData(true);
        EnableSwitchTime();
        return true;
    }
    if (code != BN_CLICKED) return false;
    if (id >= IDC_KEYSET_MODIFIER_FIRST && id < IDC_KEYSET_MODIFIER_FIRST + kModifierCount) {
        ChangeBlock();
        return true;
    }
    switch (id) {
        case IDC_KEYSET_EDIT:
            EditRow();
            return true;
        case IDC_KEYSET_CLEAR:
            ClearRow();
            return true;
        case IDC_KEYSET_RESET_KEY: {
            const int row = SelectedRowOrTell();
            if (row < 0 || !AskReset()) return true;
            app().keys.ResetKey(defaults, set_, modifier_, row);
            ShowRow(row, app().keys.Word(set_, modifier_, row));
            list_.SelectRow(row);
            SetFocus(list_.hwnd());
            return true;
        }
        case IDC_KEYSET_RESET_BLOCK:
            if (AskReset()) {
                app().keys.ResetBlock(defaults, set_, modifier_);
                ShowBlock();
            }
            return true;
        case IDC_KEYSET_RESET_ALL:
            if (AskReset()) {
                StoreList();
                app().keys.ResetAllKeys(defaults);
                ShowBlock();
            }
            return true;
        case IDC_KEYSET_SAVE_LIST:
            SaveList();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionKeySetDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_KEYSET_LIST || header.code != NM_DBLCLK) return std::nullopt;
    EditRow();
    return 0;
}

bool COptionKeySetDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    StoreList();
    SaveKeyTables(app().directories.UserDirectory(), app().keys);
    SaveGroup(app().store, SettingsGroup::KeyPage);
    changes.Record(kKeysChanged);
    return true;
}
