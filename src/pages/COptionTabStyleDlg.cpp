#include "pages/COptionTabStyleDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kTabBarChanged = 49008;

// A stored number the combo has no item for shows no choice, and stays as it is unless one is made.
void ExchangeChoice(ui::DataExchange& exchange, int id, int32_t& value) {
    int32_t index = value;
    DDX_CBIndex(exchange, id, index);
    if (index >= 0) value = index;
}

}  // namespace

COptionTabStyleDlg::COptionTabStyleDlg(AppServices& app) : OptionPage(IDD_OPTION_TAB_STYLE, app) {}

bool COptionTabStyleDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::TabBar);
    return true;
}

void COptionTabStyleDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    ExchangeUnsignedSetting(exchange, IDC_TAB_STYLE_WIDTH, &SettingsStore::WindowTabWidth);
    ExchangeUnsignedSetting(exchange, IDC_TAB_STYLE_HEIGHT, &SettingsStore::WindowTabHeight);
    DDX_Check(exchange, IDC_TAB_STYLE_ACTIVE_BOLD, store.ActiveBold);
    DDX_Check(exchange, IDC_TAB_STYLE_CLOSE_BUTTON, store.TabCloseButton);
    DDX_Check(exchange, IDC_TAB_STYLE_MULTI_LINE, store.MultiLine);
    DDX_Check(exchange, IDC_TAB_STYLE_ACTIVE_FLASH, store.ActiveFlash);
    DDX_Radio(exchange, IDC_TAB_STYLE_ICON, store.TabIcon);
    ExchangeChoice(exchange, IDC_TAB_STYLE_INSERT_POS, store.InsertPos);
    ExchangeChoice(exchange, IDC_TAB_STYLE_INSERT_PARENT_POS, store.InsertParentPos);
    ExchangeChoice(exchange, IDC_TAB_STYLE_LAST_ACTIVE, store.LastActiveTab);
}

bool COptionTabStyleDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::TabBar);
    changes.Record(kTabBarChanged);
    return true;
}
