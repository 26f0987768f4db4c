#include "pages/COptionListActionDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kListChanged = 49000;

// A stored number the combo has no item for shows no choice, and stays as it is unless one is made.
void ExchangeChoice(ui::DataExchange& exchange, int id, int32_t& value) {
    int32_t index = value;
    DDX_CBIndex(exchange, id, index);
    if (index >= 0) value = index;
}

}  // namespace

COptionListActionDlg::COptionListActionDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_ACTION, app) {}

bool COptionListActionDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListAction);
    return true;
}

void COptionListActionDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    ExchangeChoice(exchange, IDC_LIST_ACTION_LINK, store.LinkAction);
    ExchangeChoice(exchange, IDC_LIST_ACTION_NAVI_LOCK_OPEN, store.NaviLockOpenMode);
    ExchangeChoice(exchange, IDC_LIST_ACTION_TIP_TEXT, store.TipTextType);
    DDX_Check(exchange, IDC_LIST_ACTION_LOCK_OPEN, store.LockOpen);
    DDX_Check(exchange, IDC_LIST_ACTION_SELECTION_HISTORY, store.SelectionHist);
    DDX_Check(exchange, IDC_LIST_ACTION_INIT_SELECT, store.InitSel);
    DDX_Check(exchange, IDC_LIST_ACTION_KEEP_AFTER_SORT, store.KeepAfterSort);
    DDX_Check(exchange, IDC_LIST_ACTION_LOCAL_ENUM_ERROR, store.LocalEnumErr);
    DDX_Check(exchange, IDC_LIST_ACTION_INIT_SEARCH_ACTIVE, store.InitSerchActive);
    DDX_Radio(exchange, IDC_LIST_ACTION_EXEC_BACKGROUND, store.ExecBackGround);
}

bool COptionListActionDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ListAction);
    changes.Record(kListChanged);
    return true;
}
