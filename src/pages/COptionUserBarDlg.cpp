#include "pages/COptionUserBarDlg.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/AppServices.h"
#include "bindings/CDlgMouseSet.h"
#include "pages/COptionUserBarSetting.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/CRuntime.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "services/ProcessLaunch.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kUserBarChanged = 49006;
constexpr int kShowNormal = 1;
constexpr int kYes = 6;
constexpr uint32_t kWidthWhenEmpty = 100;

// The slot list's columns: number, name, folder, width (right aligned).
constexpr int kSlotColumns = 4;
constexpr int kSlotColumnWidths[kSlotColumns] = {40, 100, 100, 70};
constexpr int kNameColumn = 1;
constexpr int kDirColumn = 2;
constexpr int kWidthColumn = 3;

constexpr int kActionColumnWidth = 150;
constexpr int kCommandColumnWidth = 160;
constexpr int kClickGroups = 3;

// A column is as wide as its texts need, and never narrower than it was meant to be: a wider font,
// or a longer translation, does not cut them.
constexpr int kCellMargin = 16;
int FittingWidth(const ui::ListView& list, int width, const std::vector<std::wstring>& texts) {
    for (const std::wstring& text : texts) width = std::max(width, list.GetStringWidth(text) + kCellMargin);
    return width;
}

}  // namespace

COptionUserBarDlg::COptionUserBarDlg(AppServices& app) : OptionPage(IDD_OPTION_USER_BAR, app) {}

bool COptionUserBarDlg::LoadGroups() {
    std::vector<std::wstring> headers;
    ui::SplitControlText(Item(IDC_USER_BAR_HEADERS), headers);
    if (!CheckLabelCount(kSlotColumns, headers, IDC_USER_BAR_HEADERS)) return false;
    SettingsStore& store = app().store;
    LoadGroup(store, SettingsGroup::UserBar);
    style_ = DecodeBarStyle(store.Style);
    std::vector<std::wstring> actions;
    ui::SplitControlText(Item(IDC_USER_BAR_ACTION_NAMES), actions);
    if (!CheckLabelCount(static_cast<int>(kUserBarActions), actions, IDC_USER_BAR_ACTION_NAMES)) return false;
    table_ = MakeUserBarClickTable(app().mouseButtonNames, app().modifierNames, std::move(actions));
    // A stored action outside the ten leaves the page out of Apply, so the host keeps it.
    try {
        table_.Load(store);
    } catch (const std::invalid_argument&) {
        return false;
    }
    FillSlots(headers);
    FillClicks();
    return true;
}

void COptionUserBarDlg::FillSlots(const std::vector<std::wstring>& headers) {
    slots_ = ui::ListView(Item(IDC_USER_BAR_SLOTS));
    slots_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    for (int column = 0; column < kSlotColumns; ++column)
        slots_.InsertColumn(column, headers[static_cast<size_t>(column)],
                            FittingWidth(slots_, kSlotColumnWidths[column], {headers[static_cast<size_t>(column)]}),
                            column == kWidthColumn ? LVCFMT_RIGHT : LVCFMT_LEFT);
    const auto& bars = app().store.Bars;
    const ui::RedrawPaused paused(slots_);
    for (size_t slot = 0; slot < bars.size(); ++slot) {
        const SlotCells cells = SlotCellsOf(slot, bars[slot]);
        const int row = slots_.InsertItem(static_cast<int>(slot), cells.number);
        slots_.SetItemText(row, kNameColumn, cells.name);
        slots_.SetItemText(row, kDirColumn, cells.dir);
        slots_.SetItemText(row, kWidthColumn, cells.width);
    }
}

void COptionUserBarDlg::FillClicks() {
    clicks_ = ui::ListView(Item(IDC_USER_BAR_CLICKS));
    clicks_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    std::vector<std::wstring> labels;
    for (size_t row = 0; row < table_.size(); ++row) labels.push_back(table_.Label(row));
    clicks_.InsertColumn(0, L"Action", FittingWidth(clicks_, kActionColumnWidth, labels));
    clicks_.InsertColumn(1, L"Command", FittingWidth(clicks_, kCommandColumnWidth, table_.actions()));
    const ui::RedrawPaused paused(clicks_);
    clicks_.EnableGroupView(true);
    const std::vector<ClickGroup> groups = UserBarClickGroups(app().mouseButtonNames);
    for (int group = 0; group < kClickGroups; ++group)
        clicks_.InsertGroup(group, groups[static_cast<size_t>(group)].name);
    for (size_t row = 0; row < table_.size(); ++row) {
        clicks_.InsertGroupedItem(static_cast<int>(row), table_.Label(row), 0, static_cast<int>(row / kClickModifiers));
        ShowClick(static_cast<int>(row));
    }
}

void COptionUserBarDlg::ShowClick(int row) const {
    clicks_.SetItemText(row, 1, table_.ActionText(static_cast<size_t>(row)));
    clicks_.SetItemData(row, table_.Value(static_cast<size_t>(row)));
}

void COptionUserBarDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_CBIndex(exchange, IDC_USER_BAR_SORT_MODE, store.UBarValues::SortMode);
    DDX_Check(exchange, IDC_USER_BAR_RESTORE_HISTORY, store.RestoreScriptHistoryUB);
    DDX_Check(exchange, IDC_USER_BAR_LIST_VIEW, style_.list);
    DDX_Check(exchange, IDC_USER_BAR_MULTI_SELECT, style_.multiSelect);
    if (!exchange.saving()) EnableMultiSelect();
}

void COptionUserBarDlg::EnableMultiSelect() const {
    EnableWindow(Item(IDC_USER_BAR_MULTI_SELECT), ui::Button(Item(IDC_USER_BAR_LIST_VIEW)).IsChecked());
}

void COptionUserBarDlg::ChangeClick() {
    const int row = clicks_.GetSelectedRow();
    if (ChooseRowAction(app(), hwnd(), table_, row)) ShowClick(row);
}

int COptionUserBarDlg::SelectedSlot() const {
    const int row = slots_.GetSelectedRow();
    if (row < 0) platform::Current().prompts.ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
    return row;
}

void COptionUserBarDlg::EditSlot() {
    const int row = SelectedSlot();
    if (row < 0) return;
    COptionUserBarSetting editor(app());
    editor.name = slots_.GetItemText(row, kNameColumn);
    editor.dir = slots_.GetItemText(row, kDirColumn);
    const std::wstring width = slots_.GetItemText(row, kWidthColumn);
    editor.width = width.empty() ? kWidthWhenEmpty : static_cast<uint32_t>(crt::Wtoi(width));
    if (editor.DoModal(hwnd()) != IDOK) return;
    slots_.SetItemText(row, kNameColumn, editor.name);
    slots_.SetItemText(row, kDirColumn, editor.dir);
    slots_.SetItemText(row, kWidthColumn, std::to_wstring(editor.width));
}

// The slot is emptied; its folder and icon stay on disk for the day it is registered again.
void COptionUserBarDlg::DeleteSlot() {
    const int row = SelectedSlot();
    if (row < 0) return;
    const std::wstring question = app().messages.Get(kMsgDeleteRowQuestion) + L"\n" +
                                  slots_.GetItemText(row, kNameColumn) + L"\n" + slots_.GetItemText(row, kDirColumn);
    if (platform::Current().prompts.ShowMessage(question, platform::kStyleYesNo) != kYes) return;
    for (int column : {kNameColumn, kDirColumn, kWidthColumn}) slots_.SetItemText(row, column, L"");
}

bool COptionUserBarDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_USER_BAR_OPEN_FOLDER:
            ShellLaunch(app().directories.UserDirectory() + L"Bar", L"", L"", false, kShowNormal);
            return true;
        case IDC_USER_BAR_EDIT:
            EditSlot();
            return true;
        case IDC_USER_BAR_DELETE:
            DeleteSlot();
            return true;
        case IDC_USER_BAR_CHANGE:
            ChangeClick();
            return true;
        case IDC_USER_BAR_LIST_VIEW:
            EnableMultiSelect();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionUserBarDlg::OnNotify(const NMHDR& header) {
    if (header.code != NM_DBLCLK) return std::nullopt;
    if (header.idFrom == IDC_USER_BAR_SLOTS) {
        EditSlot();
        return 0;
    }
    if (header.idFrom == IDC_USER_BAR_CLICKS) {
        ChangeClick();
        return 0;
    }
    return std::nullopt;
}

void COptionUserBarDlg::OnOK() {
    Apply(app().pendingChanges);
    OptionPage::OnOK();
}

bool COptionUserBarDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SettingsStore& store = app().store;
    table_.Store(store);
    for (int row = 0; row < kUserBars; ++row)
        store.Bars[static_cast<size_t>(row)] =
            BarOfCells(slots_.GetItemText(row, kNameColumn), slots_.GetItemText(row, kDirColumn),
                       slots_.GetItemText(row, kWidthColumn));
    store.Style = EncodeBarStyle(style_);
    CopyBarIcons(platform::Current().files, app().directories.ProgramDirectory(), app().directories.UserDirectory(),
                 store.Bars);
    SaveGroup(store, SettingsGroup::UserBar);
    changes.Record(kUserBarChanged);
    return true;
}
