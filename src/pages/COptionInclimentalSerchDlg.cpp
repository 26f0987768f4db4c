#include "pages/COptionInclimentalSerchDlg.h"

#include "app/AppServices.h"
#include "definitions/CDlgRunSet.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kIncrementalSearchChanged = 49032;

}  // namespace

COptionInclimentalSerchDlg::COptionInclimentalSerchDlg(AppServices& app)
    : OptionPage(IDD_OPTION_INCLIMENTAL_SERCH, app) {}

bool COptionInclimentalSerchDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::IncrementalSearch);
    return true;
}

bool COptionInclimentalSerchDlg::OnInitDialog() {
    const bool focusFirst = OptionPage::OnInitDialog();
    library_.Attach(hwnd(), IDC_INC_SEARCH_MIGEMO_DLL, runset::FolderChooser(app()));
    dictionary_.Attach(hwnd(), IDC_INC_SEARCH_MIGEMO_DIC, runset::FolderChooser(app()));
    return focusFirst;
}

void COptionInclimentalSerchDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    ExchangeSetting(exchange, IDC_INC_SEARCH_TIME, &SettingsStore::IncliMentTime);
    DDX_Check(exchange, IDC_INC_SEARCH_USE_MIGEMO, store.UseMigemo);
    DDX_Text(exchange, IDC_INC_SEARCH_MIGEMO_DLL, store.MigemoDll);
    DDX_Text(exchange, IDC_INC_SEARCH_MIGEMO_DIC, store.MigemoDic);
    ExchangeSetting(exchange, IDC_INC_SEARCH_MIGEMO_MAX, &SettingsStore::MigemoMax);
    if (!exchange.saving()) EnableMigemoFields();
}

// The folders and the limit mean something only while C/Migemo is used.
void COptionInclimentalSerchDlg::EnableMigemoFields() const {
    const bool migemo = ui::Button(Item(IDC_INC_SEARCH_USE_MIGEMO)).IsChecked();
    for (int id : {IDC_INC_SEARCH_MIGEMO_DLL, IDC_INC_SEARCH_MIGEMO_DIC, IDC_INC_SEARCH_MIGEMO_MAX})
        EnableWindow(Item(id), migemo);
}

bool COptionInclimentalSerchDlg::OnCommand(int id, int code) {
    if (id != IDC_INC_SEARCH_USE_MIGEMO || code != BN_CLICKED) return false;
    EnableMigemoFields();
    return true;
}

bool COptionInclimentalSerchDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::IncrementalSearch);
    changes.Record(kIncrementalSearchChanged);
    return true;
}
