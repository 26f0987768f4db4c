#include "pages/COptionRecentDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kRecentChanged = 49004;

}  // namespace

COptionRecentDlg::COptionRecentDlg(AppServices& app) : OptionPage(IDD_OPTION_RECENT, app) {}

bool COptionRecentDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Recent);
    return true;
}

void COptionRecentDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    ExchangeSetting(exchange, IDC_RECENT_HISTORY, &SettingsStore::WindowHistory);
    DDX_Check(exchange, IDC_RECENT_ICON, store.Icon);
    DDX_Check(exchange, IDC_RECENT_FULL_PATH, store.FullPath);
    DDX_Check(exchange, IDC_RECENT_SCRIPT_HISTORY, store.RestoreScriptHistoryHB);
}

bool COptionRecentDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::Recent);
    changes.Record(kRecentChanged);
    return true;
}
