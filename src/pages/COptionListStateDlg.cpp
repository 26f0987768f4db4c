#include "pages/COptionListStateDlg.h"

#include "app/AppServices.h"
#include "definitions/CDlgRunSet.h"
#include "definitions/MacroHelperData.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kStatusAreaChanged = 49028;
constexpr int kPartChecks[kStatusParts] = {IDC_LIST_STATE_ALIVE, IDC_LIST_STATE_TIMES, IDC_LIST_STATE_WATCH};

}  // namespace

COptionListStateDlg::COptionListStateDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_STATE, app) {}

bool COptionListStateDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListStatus);
    return true;
}

void COptionListStateDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    StatusParts parts = PartsOfListCtrls(store.ListCtrls);
    for (int i = 0; i < kStatusParts; ++i) {
        int32_t shown = parts[i];
        DDX_Check(exchange, kPartChecks[i], shown);
        parts[i] = shown == BST_CHECKED;
    }
    if (exchange.saving()) store.ListCtrls = ListCtrlsOfParts(parts);
    DDX_Check(exchange, IDC_LIST_STATE_NETWORK_DISK, store.NetworkDiskSize);
    DDX_Text(exchange, IDC_LIST_STATE_DISK_INFO, store.StDiskInfo);
    DDX_Text(exchange, IDC_LIST_STATE_SELECT, store.StSelect);
    DDX_Text(exchange, IDC_LIST_STATE_NO_SEL, store.StNoSel);
}

void COptionListStateDlg::ShowPreset(StatusPreset preset) const {
    const StatusTemplates texts = PresetTemplates(preset);
    SetDlgItemTextW(hwnd(), IDC_LIST_STATE_DISK_INFO, texts.diskInfo.c_str());
    SetDlgItemTextW(hwnd(), IDC_LIST_STATE_SELECT, texts.selected.c_str());
    SetDlgItemTextW(hwnd(), IDC_LIST_STATE_NO_SEL, texts.noSelection.c_str());
}

// The macro buttons stand beside their edits in the same order; a macro chosen takes the place of the
// edit's selection, and Ctrl+Z takes it back.
bool COptionListStateDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_LIST_STATE_MACRO_DISK_INFO:
        case IDC_LIST_STATE_MACRO_SELECT:
        case IDC_LIST_STATE_MACRO_NO_SEL:
            runset::InsertMacro(app(), hwnd(), IDC_LIST_STATE_DISK_INFO + (id - IDC_LIST_STATE_MACRO_DISK_INFO),
                                kMacroHelperStatusArea, {kMacroHelperStatusArea});
            return true;
        case IDC_LIST_STATE_JAPANESE:
            ShowPreset(StatusPreset::Japanese);
            return true;
        case IDC_LIST_STATE_ENGLISH:
            ShowPreset(StatusPreset::English);
            return true;
        case IDC_LIST_STATE_SAMPLE:
            ShowPreset(StatusPreset::Sample);
            return true;
        default:
            return false;
    }
}

bool COptionListStateDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ListStatus);
    changes.Record(kStatusAreaChanged);
    return true;
}
