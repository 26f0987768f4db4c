#include "pages/COptionNetworkDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kNetworkChanged = 49021;

}  // namespace

COptionNetworkDlg::COptionNetworkDlg(AppServices& app) : OptionPage(IDD_OPTION_NETWORK, app) {}

bool COptionNetworkDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Network);
    return true;
}

void COptionNetworkDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_NETWORK_USE_PING, store.UsePing);
    ExchangeSetting(exchange, IDC_NETWORK_TIMEOUT, &SettingsStore::NetworkTimeout);
    ExchangeSetting(exchange, IDC_NETWORK_RETRY, &SettingsStore::NetworkRetry);
    if (!exchange.saving()) EnablePingFields();
}

// The time-out and the retries mean something only when the host pings.
void COptionNetworkDlg::EnablePingFields() const {
    const bool ping = ui::Button(Item(IDC_NETWORK_USE_PING)).IsChecked();
    EnableWindow(Item(IDC_NETWORK_TIMEOUT), ping);
    EnableWindow(Item(IDC_NETWORK_RETRY), ping);
}

bool COptionNetworkDlg::OnCommand(int id, int code) {
    if (id != IDC_NETWORK_USE_PING || code != BN_CLICKED) return false;
    EnablePingFields();
    return true;
}

bool COptionNetworkDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::Network);
    changes.Record(kNetworkChanged);
    return true;
}
