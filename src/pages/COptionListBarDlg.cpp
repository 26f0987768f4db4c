#include "pages/COptionListBarDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kFilterBarChanged = 49035;

}  // namespace

COptionListBarDlg::COptionListBarDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_BAR, app) {}

bool COptionListBarDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::FilterBar);
    return true;
}

void COptionListBarDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    ExchangeSetting(exchange, IDC_LIST_BAR_FILTER_SPEED, &SettingsStore::FilterSpeed);
    DDX_Check(exchange, IDC_LIST_BAR_SPC_IS_OR, store.SpcIsOR);
    DDX_Check(exchange, IDC_LIST_BAR_EXCLUDED_FOLDER, store.ExcludedFolder);
    DDX_Check(exchange, IDC_LIST_BAR_EX_PATH_MATCH, store.ExPathMatch);
}

bool COptionListBarDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::FilterBar);
    changes.Record(kFilterBarChanged);
    return true;
}
