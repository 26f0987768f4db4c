#include "pages/COptionDivListDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kSplitViewChanged = 49038;

}  // namespace

COptionDivListDlg::COptionDivListDlg(AppServices& app) : OptionPage(IDD_OPTION_DIV_LIST, app) {}

bool COptionDivListDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::SplitView);
    return true;
}

void COptionDivListDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_DIV_LIST_HORIZONTAL, store.DivWndH);
    DDX_Check(exchange, IDC_DIV_LIST_REFRESH_BOTH, store.DivRefleshBoth);
    DDX_Check(exchange, IDC_DIV_LIST_SYNC_MOVE, store.DivSyncMove);
    DDX_Check(exchange, IDC_DIV_LIST_SYNC_FOCUS, store.DivSyncFocus);
    DDX_Check(exchange, IDC_DIV_LIST_COMPARE, store.DivCompare);
}

bool COptionDivListDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::SplitView);
    changes.Record(kSplitViewChanged);
    return true;
}
