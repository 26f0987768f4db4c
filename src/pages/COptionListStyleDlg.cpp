#include "pages/COptionListStyleDlg.h"

#include "app/AppServices.h"
#include "pages/ListViewChoices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kListChanged = 49000;
// The date format is the host's pattern, as typed or picked; longer ones the host would cut.
constexpr int kTimeFormatChars = 80;

}  // namespace

COptionListStyleDlg::COptionListStyleDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_STYLE, app) {}

bool COptionListStyleDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListStyle);
    return true;
}

void COptionListStyleDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_LIST_STYLE_SIZE_UNIT, store.SizeUnit);
    DDX_Check(exchange, IDC_LIST_STYLE_KB_ONLY, store.UseKBOnly);
    DDX_Check(exchange, IDC_LIST_STYLE_POINT_SIZE, store.UsePtSize);
    DDX_Check(exchange, IDC_LIST_STYLE_FAST_ONLY, store.FastOnly);
    DDX_CheckBits(exchange, kOtherStyleChecks, store.ListViewOtherStyle);
    // Empty: the system's own format.
    DDX_Text(exchange, IDC_LIST_STYLE_TIME_FORMAT, store.TimeFmt);
    DDV_MaxChars(exchange, store.TimeFmt, kTimeFormatChars);
    ExchangeUnsignedSetting(exchange, IDC_LIST_STYLE_MAX_ITEMS, &SettingsStore::MaxListItem);
    if (!exchange.saving()) EnableUnitChecks();
}

// How the unit is written matters only when one is written.
void COptionListStyleDlg::EnableUnitChecks() const {
    const bool unit = ui::Button(Item(IDC_LIST_STYLE_SIZE_UNIT)).IsChecked();
    EnableWindow(Item(IDC_LIST_STYLE_KB_ONLY), unit);
    EnableWindow(Item(IDC_LIST_STYLE_POINT_SIZE), unit);
}

bool COptionListStyleDlg::OnCommand(int id, int code) {
    if (id != IDC_LIST_STYLE_SIZE_UNIT || code != BN_CLICKED) return false;
    EnableUnitChecks();
    return true;
}

bool COptionListStyleDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ListStyle);
    changes.Record(kListChanged);
    return true;
}
