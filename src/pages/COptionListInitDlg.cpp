#include "pages/COptionListInitDlg.h"

#include "app/AppServices.h"
#include "definitions/CDlgRunSet.h"
#include "pages/CDlgFolderSettingInfo.h"
#include "pages/FolderState.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kListInitialChanged = 49022;
constexpr int kPathLimit = 255;

}  // namespace

COptionListInitDlg::COptionListInitDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_INIT, app) {}

bool COptionListInitDlg::LoadGroups() {
    SettingsStore& store = app().store;
    LoadGroup(store, SettingsGroup::ListInitial);
    const ui::ListView list(Item(IDC_LIST_INIT_SORT_LIST));
    if (CDlgFolderSettingInfo::ShowSortList(app(), list, Item(IDC_LIST_INIT_SORT_LABELS),
                                            store.ListInitValues::SortMode))
        sortList_ = list;
    initPath_.Attach(hwnd(), IDC_LIST_INIT_PATH, runset::FolderChooser(app()));
    return true;
}

void COptionListInitDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    if (!exchange.saving()) viewRadio_ = ViewRadioOfNumber(store.ViewMode);
    DDX_Radio(exchange, IDC_LIST_INIT_VIEW, viewRadio_);
    DDX_Radio(exchange, IDC_LIST_INIT_ICON_SIZE, store.IconSize);
    DDX_Check(exchange, IDC_LIST_INIT_FOLDERS_FIRST, store.AdvancedFoler);
    DDX_Radio(exchange, IDC_LIST_INIT_DIRECTION, store.OrderMode);
    DDX_Check(exchange, IDC_LIST_INIT_INSIDE_TREE, store.InitShowInsideTree);
    DDX_Text(exchange, IDC_LIST_INIT_PATH, store.InitPath);
    DDV_MaxChars(exchange, store.InitPath, kPathLimit);
}

// The sort order is the row the user last put the focus on; with none, the stored order stays, even
// one whose column the shell no longer gives.
bool COptionListInitDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SettingsStore& store = app().store;
    store.ViewMode = ViewNumberOfRadio(viewRadio_, store.ViewMode);
    const int focused = sortList_.hwnd() ? sortList_.GetNextItem(-1, LVNI_FOCUSED) : -1;
    if (focused >= 0) store.ListInitValues::SortMode = static_cast<int32_t>(sortList_.GetItemData(focused));
    SaveGroup(store, SettingsGroup::ListInitial);
    changes.Record(kListInitialChanged);
    return true;
}
