#include "pages/COptionListAddressbarDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

// Shared with the icon page: the host rereads both groups on it.
constexpr uint16_t kAddressBarChanged = 49034;

}  // namespace

COptionListAddressbarDlg::COptionListAddressbarDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_ADDRESSBAR, app) {}

bool COptionListAddressbarDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::AddressBar);
    return true;
}

void COptionListAddressbarDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Radio(exchange, IDC_ADDRESS_BAR_DBL_CLK, store.AddressBarDblClk);
    DDX_Check(exchange, IDC_ADDRESS_BAR_ADD_FILE, store.AddressBarAddFile);
}

// The code goes in before the page's fields are taken; none of them can refuse.
bool COptionListAddressbarDlg::Apply(PendingChanges& changes) {
    changes.Record(kAddressBarChanged);
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::AddressBar);
    return true;
}
