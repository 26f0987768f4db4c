#include "bindings/COptionMouseActionDlg.h"

#include <stdexcept>

#include "app/AppServices.h"
#include "bindings/CDlgMouseSet.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "settings/SettingsGroups.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

using LM = ListMouseValues;

constexpr uint16_t kListClicksChanged = 49012;
constexpr int kActionColumnWidth = 150;
constexpr int kCommandColumnWidth = 275;
// The fixed actions of the hidden label come first, then ten commands of each of two ranges.
constexpr int kFixedActions = 5;
constexpr uint16_t kCommandRanges[] = {40501, 40001};
constexpr uint16_t kCommandsPerRange = 10;
// The groups take these parts of the option dialog's button names, and the swap exchanges the
// first two groups.
constexpr size_t kGroupButtonParts[] = {1, 2, 4};
constexpr size_t kRowsPerGroup = kClickModifiers;

}  // namespace

COptionMouseActionDlg::COptionMouseActionDlg(AppServices& app) : OptionPage(IDD_OPTION_MOUSE_ACTION, app) {}

bool COptionMouseActionDlg::MakeTable() {
    std::vector<std::wstring> actions;
    ui::SplitControlText(Item(IDC_MOUSE_ACTION_NAMES), actions);
    if (!CheckLabelCount(kFixedActions, actions, IDC_MOUSE_ACTION_NAMES)) return false;
    for (uint16_t first : kCommandRanges) {
        for (uint16_t id = first; id < first + kCommandsPerRange; ++id)
            actions.push_back(app().commands.GetCommandString(id, app().resourceModule.get()));
    }
    const std::vector<std::wstring>& buttons = app().mouseButtonNames;
    auto button = [&](size_t part) { return part < buttons.size() ? buttons[part] : std::wstring(); };
    const ClickGroup groups[] = {
        {button(kGroupButtonParts[0]), {&LM::En, &LM::EnC, &LM::EnS, &LM::EnCS}},
        {button(kGroupButtonParts[1]), {&LM::L, &LM::LC, &LM::LS, &LM::LCS}},
        {button(kGroupButtonParts[2]), {&LM::M, &LM::MC, &LM::MS, &LM::MCS}},
    };
    groupNames_.clear();
    for (const ClickGroup& group : groups) groupNames_.push_back(group.name);
    table_ = ClickTable(ClickRowsOf(groups, app().modifierNames), std::move(actions));
    return true;
}

bool COptionMouseActionDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListClicks);
    list_ = ui::ListView(Item(IDC_MOUSE_ACTION_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, L"Action", kActionColumnWidth);
    list_.InsertColumn(1, L"Command", kCommandColumnWidth);
    if (!MakeTable()) return false;
    // A stored value outside the actions leaves the page out of Apply, so the host keeps it.
    try {
        table_.Load(app().store);
    } catch (const std::invalid_argument&) {
        return false;
    }
    FillList();
    return true;
}

void COptionMouseActionDlg::FillList() {
    list_.EnableGroupView(true);
    for (size_t group = 0; group < groupNames_.size(); ++group)
        list_.InsertGroup(static_cast<int>(group), groupNames_[group]);
    for (size_t row = 0; row < table_.size(); ++row) {
        list_.InsertGroupedItem(static_cast<int>(row), table_.Label(row), 0, static_cast<int>(row / kRowsPerGroup));
        ShowRow(static_cast<int>(row));
    }
}

void COptionMouseActionDlg::ShowRow(int row) const {
    list_.SetItemText(row, 1, table_.ActionText(static_cast<size_t>(row)));
    list_.SetItemData(row, table_.Value(static_cast<size_t>(row)));
}

void COptionMouseActionDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Check(exchange, IDC_MOUSE_ACTION_SINGLE_CLICK, app().store.LM::SingleClick);
}

void COptionMouseActionDlg::ChangeRow() {
    const int row = list_.GetSelectedRow();
    if (ChooseRowAction(app(), hwnd(), table_, row)) ShowRow(row);
}

bool COptionMouseActionDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_MOUSE_ACTION_CHANGE:
            ChangeRow();
            return true;
        case IDC_MOUSE_ACTION_SWAP:
            table_.SwapRows(0, kRowsPerGroup, kRowsPerGroup);
            for (size_t row = 0; row < 2 * kRowsPerGroup && row < table_.size(); ++row) ShowRow(static_cast<int>(row));
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionMouseActionDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_MOUSE_ACTION_LIST || header.code != NM_DBLCLK) return std::nullopt;
    ChangeRow();
    return 0;
}

bool COptionMouseActionDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    table_.Store(app().store);
    SaveGroup(app().store, SettingsGroup::ListClicks);
    changes.Record(kListClicksChanged);
    return true;
}
