#include "pages/COptionTreeInfoDlg.h"

#include <string>
#include <vector>

#include "app/AppServices.h"
#include "bindings/CDlgMouseSet.h"
#include "pages/CDlgSetUUID.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kTreeChanged = 49007;
constexpr int kActionCount = 4;
constexpr int kActionColumnWidth = 150;
constexpr int kCommandColumnWidth = 160;
constexpr int kNameColumnWidth = 150;
constexpr int kPathColumnWidth = 160;
constexpr int kGroupCount = 3;

// A check and the fields that mean something only while it is on. Disabled fields keep their values
// and are saved as they stand.
struct Dependents {
    int check;
    std::vector<int> fields;
};
const Dependents kDependents[] = {
    {IDC_TREE_CURSOR_OPEN, {IDC_TREE_DELAY_TIME}},
    {IDC_TREE_NO_LINE, {IDC_TREE_LINE_SEL}},
    {IDC_TREE_SYNC, {IDC_TREE_TAB_SYNC, IDC_TREE_VIRTUAL_SYNC, IDC_TREE_NETWORK_SYNC}},
};

}  // namespace

COptionTreeInfoDlg::COptionTreeInfoDlg(AppServices& app) : OptionPage(IDD_OPTION_TREE_INFO, app) {}

bool COptionTreeInfoDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Tree);
    clicks_ = ui::ListView(Item(IDC_TREE_CLICKS));
    clicks_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    clicks_.InsertColumn(0, L"Action", kActionColumnWidth);
    clicks_.InsertColumn(1, L"Command", kCommandColumnWidth);
    roots_ = ui::ListView(Item(IDC_TREE_ROOTS));
    roots_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    roots_.InsertColumn(0, L"Name", kNameColumnWidth);
    roots_.InsertColumn(1, L"Path or UUID", kPathColumnWidth);
    std::vector<std::wstring> labels;
    ui::SplitControlText(Item(IDC_TREE_ACTION_NAMES), labels);
    if (!CheckLabelCount(kActionCount, labels, IDC_TREE_ACTION_NAMES)) return false;
    table_ = MakeTreeClickTable(app().mouseButtonNames, app().modifierNames, std::move(labels));
    table_.Load(app().store);
    FillClicks();
    rootList_.Load(app().store.TopNode, platform::Current().shell);
    ShowRoots(-1);
    return true;
}

void COptionTreeInfoDlg::FillClicks() {
    const ui::RedrawPaused paused(clicks_);
    clicks_.EnableGroupView(true);
    const std::vector<ClickGroup> groups = TreeClickGroups(app().mouseButtonNames);
    for (int group = 0; group < kGroupCount; ++group)
        clicks_.InsertGroup(group, groups[static_cast<size_t>(group)].name);
    for (size_t row = 0; row < table_.size(); ++row) {
        clicks_.InsertGroupedItem(static_cast<int>(row), table_.Label(row), 0, static_cast<int>(row / kClickModifiers));
        ShowClick(static_cast<int>(row));
    }
}

void COptionTreeInfoDlg::ShowClick(int row) const {
    clicks_.SetItemText(row, 1, table_.ActionText(static_cast<size_t>(row)));
    clicks_.SetItemData(row, table_.Value(static_cast<size_t>(row)));
}

void COptionTreeInfoDlg::ChangeClick() {
    const int row = clicks_.GetSelectedRow();
    if (ChooseRowAction(app(), hwnd(), table_, row)) ShowClick(row);
}

void COptionTreeInfoDlg::ShowRoots(int selected) const {
    {
        const ui::RedrawPaused paused(roots_);
        roots_.DeleteAllItems();
        const std::vector<TreeRoot>& rows = rootList_.rows();
        for (size_t row = 0; row < rows.size(); ++row) {
            roots_.InsertItem(static_cast<int>(row), rows[row].name);
            roots_.SetItemText(static_cast<int>(row), 1, rows[row].text);
        }
    }
    if (selected < 0) return;
    roots_.SelectRow(selected);
    roots_.EnsureVisible(selected);
}

void COptionTreeInfoDlg::AddRoot() {
    if (rootList_.Full()) {
        platform::Current().prompts.ShowMessage(app().messages.Get(kMsgListFull), platform::kStyleOk);
        return;
    }
    catalog_.Build(platform::Current().shell);
    CDlgSetUUID chooser(app(), catalog_);
    if (chooser.DoModal(hwnd()) != IDOK) return;
    TreeRoot root;
    if (chooser.kind == 0) {
        // A folder the shell cannot name would not come back at the next opening either.
        std::optional<std::wstring> name = platform::Current().shell.AddressBarName(chooser.path);
        if (!name) return;
        root = {std::move(*name), chooser.path};
    } else {
        const platform::KnownFolder folder = catalog_.At(chooser.index);
        root = {folder.name, folder.id};
    }
    ShowRoots(rootList_.Insert(roots_.GetSelectedRow(), std::move(root)));
}

void COptionTreeInfoDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_TREE_AUTO_SCROLL, store.TreeAutoScroll);
    DDX_Check(exchange, IDC_TREE_NO_LINE, store.NoLine);
    DDX_Check(exchange, IDC_TREE_LINE_SEL, store.LineSel);
    DDX_Check(exchange, IDC_TREE_SINGLE_OPEN, store.SingleOpen);
    DDX_Check(exchange, IDC_TREE_FADE_BUTTON, store.FadeBtn);
    DDX_Check(exchange, IDC_TREE_CLASSIC_STYLE, store.ClassicStyle);
    DDX_Check(exchange, IDC_TREE_HIDDEN_ITEM, store.TreeInfoValues::HiddenItem);
    ExchangeUnsignedSetting(exchange, IDC_TREE_LINE_SPACE, &SettingsStore::LineSpace);
    DDX_Check(exchange, IDC_TREE_CURSOR_OPEN, store.CursorOpen);
    ExchangeUnsignedSetting(exchange, IDC_TREE_DELAY_TIME, &SettingsStore::DelayTime);
    DDX_Check(exchange, IDC_TREE_SYNC, store.TreeSync);
    DDX_Check(exchange, IDC_TREE_TAB_SYNC, store.TreeTabSync);
    DDX_Check(exchange, IDC_TREE_VIRTUAL_SYNC, store.TreeVirSync);
    DDX_Check(exchange, IDC_TREE_NETWORK_SYNC, store.TreeNetSync);
    if (!exchange.saving()) EnableDependents();
}

void COptionTreeInfoDlg::EnableDependents() const {
    for (const Dependents& rule : kDependents) {
        const bool on = ui::Button(Item(rule.check)).IsChecked();
        for (int id : rule.fields) EnableWindow(Item(id), on);
    }
}

bool COptionTreeInfoDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_TREE_CHANGE:
            ChangeClick();
            return true;
        case IDC_TREE_ADD_ROOT:
            AddRoot();
            return true;
        case IDC_TREE_DELETE_ROOT: {
            const int row = roots_.GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED);
            if (row >= 0) ShowRoots(rootList_.Remove(row));
            return true;
        }
        case IDC_TREE_ROOT_UP:
        case IDC_TREE_ROOT_DOWN: {
            const int to = rootList_.Move(roots_.GetSelectedRow(), id == IDC_TREE_ROOT_UP ? -1 : 1);
            if (to >= 0) ShowRoots(to);
            return true;
        }
        case IDC_TREE_TAKE_FIELDS:
            UpdateData(true);
            return true;
        case IDC_TREE_CURSOR_OPEN:
        case IDC_TREE_NO_LINE:
        case IDC_TREE_SYNC:
            EnableDependents();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionTreeInfoDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_TREE_CLICKS || header.code != NM_DBLCLK) return std::nullopt;
    ChangeClick();
    return 0;
}

bool COptionTreeInfoDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    table_.Store(app().store);
    app().store.TopNode = rootList_.Texts();
    SaveGroup(app().store, SettingsGroup::Tree);
    changes.Record(kTreeChanged);
    return true;
}
