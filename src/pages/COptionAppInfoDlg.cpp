#include "pages/COptionAppInfoDlg.h"

#include "app/AppServices.h"
#include "pages/SortBenchmark.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kAppInfoChanged = 49017;

}  // namespace

COptionAppInfoDlg::COptionAppInfoDlg(AppServices& app) : OptionPage(IDD_OPTION_APPINFO, app) {}

bool COptionAppInfoDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::General);
    return true;
}

void COptionAppInfoDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_APPINFO_USE_COMP_FOLDER, store.UseCompFolder);
    DDX_Check(exchange, IDC_APPINFO_DISABLE_ANIMATION, store.DisableAnimation);
    DDX_Check(exchange, IDC_APPINFO_CACHE_COMMANDS, store.CasheExCmd);
    DDX_Check(exchange, IDC_APPINFO_IME_OFF, store.IME);
    DDX_Check(exchange, IDC_APPINFO_DRAG_HELPER, store.DragHelper);
    ExchangeUnsignedSetting(exchange, IDC_APPINFO_SORT_THRESHOLD, &SettingsStore::ChgSortAlg);
}

// The benchmark blocks the dialog for as long as it runs; the template warns of that. Its result
// shows in the field and is stored only by Apply.
bool COptionAppInfoDlg::OnCommand(int id, int code) {
    if (id != IDC_APPINFO_BENCHMARK || code != BN_CLICKED) return false;
    sortbench::RunSortBenchmark({.threshold = app().store.ChgSortAlg});
    UpdateData(false);
    return true;
}

bool COptionAppInfoDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::General);
    changes.Record(kAppInfoChanged);
    return true;
}
