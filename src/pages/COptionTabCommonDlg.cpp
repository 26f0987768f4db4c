#include "pages/COptionTabCommonDlg.h"

#include <string>
#include <vector>

#include "app/AppServices.h"
#include "bindings/CDlgMouseSet.h"
#include "pages/TabClicks.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kTabCommonChanged = 49031;
constexpr int kActionColumnWidth = 150;
constexpr int kCommandColumnWidth = 160;
constexpr int kGroupCount = 3;

// Restoring networked and virtual folders, and their history, only mean something while the tabs
// are restored at all.
constexpr int kRestoreChecks[] = {IDC_TAB_COMMON_LAST_TAB_NET, IDC_TAB_COMMON_LAST_TAB_VIR,
                                  IDC_TAB_COMMON_RESTORE_HISTORY};

}  // namespace

COptionTabCommonDlg::COptionTabCommonDlg(AppServices& app) : OptionPage(IDD_OPTION_TAB_COMMON, app) {}

bool COptionTabCommonDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::TabCommon);
    list_ = ui::ListView(Item(IDC_TAB_COMMON_CLICKS));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, L"Action", kActionColumnWidth);
    list_.InsertColumn(1, L"Command", kCommandColumnWidth);
    std::vector<std::wstring> labels;
    ui::SplitControlText(Item(IDC_TAB_COMMON_COMMAND_NAMES), labels);
    if (!CheckLabelCount(static_cast<int>(kTabClickCommands.size()), labels, IDC_TAB_COMMON_COMMAND_NAMES))
        return false;
    table_ = MakeTabClickTable(app().mouseButtonNames, app().modifierNames, std::move(labels));
    table_.Load(app().store);
    FillList();
    return true;
}

void COptionTabCommonDlg::FillList() {
    list_.EnableGroupView(true);
    const std::vector<ClickGroup> groups = TabClickGroups(app().mouseButtonNames);
    for (int group = 0; group < kGroupCount; ++group) list_.InsertGroup(group, groups[static_cast<size_t>(group)].name);
    for (size_t row = 0; row < table_.size(); ++row) {
        list_.InsertGroupedItem(static_cast<int>(row), table_.Label(row), 0, static_cast<int>(row / kClickModifiers));
        ShowRow(static_cast<int>(row));
    }
}

void COptionTabCommonDlg::ShowRow(int row) const {
    list_.SetItemText(row, 1, table_.ActionText(static_cast<size_t>(row)));
    list_.SetItemData(row, table_.Value(static_cast<size_t>(row)));
}

void COptionTabCommonDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_TAB_COMMON_SAME_PATH_CHANGE, store.SamePathIsChange);
    DDX_Check(exchange, IDC_TAB_COMMON_SAME_PATH_CLOSE, store.SamePathIsClose);
    DDX_Check(exchange, IDC_TAB_COMMON_DRAG_CHANGE, store.DragChange);
    DDX_Check(exchange, IDC_TAB_COMMON_FLAT, store.Flat);
    DDX_Check(exchange, IDC_TAB_COMMON_ACTIVE_STRONG, store.ActiveStrong);
    DDX_Check(exchange, IDC_TAB_COMMON_LAST_TAB, store.LastTab);
    DDX_Check(exchange, IDC_TAB_COMMON_LAST_TAB_NET, store.LastTabNet);
    DDX_Check(exchange, IDC_TAB_COMMON_LAST_TAB_VIR, store.LastTabVir);
    DDX_Check(exchange, IDC_TAB_COMMON_RESTORE_HISTORY, store.RestoreScriptHistoryLT);
    if (!exchange.saving()) EnableRestoreChecks();
}

// Disabled checks keep their values and are saved as they stand.
void COptionTabCommonDlg::EnableRestoreChecks() const {
    const bool restore = ui::Button(Item(IDC_TAB_COMMON_LAST_TAB)).IsChecked();
    for (int id : kRestoreChecks) EnableWindow(Item(id), restore);
}

void COptionTabCommonDlg::ChangeRow() {
    const int row = list_.GetSelectedRow();
    if (ChooseRowAction(app(), hwnd(), table_, row)) ShowRow(row);
}

bool COptionTabCommonDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_TAB_COMMON_CHANGE:
            ChangeRow();
            return true;
        case IDC_TAB_COMMON_LAST_TAB:
            EnableRestoreChecks();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionTabCommonDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_TAB_COMMON_CLICKS || header.code != NM_DBLCLK) return std::nullopt;
    ChangeRow();
    return 0;
}

bool COptionTabCommonDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    table_.Store(app().store);
    SaveGroup(app().store, SettingsGroup::TabCommon);
    changes.Record(kTabCommonChanged);
    return true;
}
