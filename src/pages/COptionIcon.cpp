#include "pages/COptionIcon.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kIconSettingsChanged = 49034;

}  // namespace

COptionIcon::COptionIcon(AppServices& app) : OptionPage(IDD_OPTION_ICON, app) {}

bool COptionIcon::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListIcon);
    return true;
}

void COptionIcon::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Radio(exchange, IDC_ICON_MODE, store.ListIconMode);
    DDX_Text(exchange, IDC_ICON_EASY_EXTENSIONS, store.EasyIconEx);
    DDX_Check(exchange, IDC_ICON_OVERLAY_ATTR, store.OverlayAttr);
    DDX_Radio(exchange, IDC_ICON_OVERLAY_MODE, store.OverLayMode);
    ExchangeUnsignedSetting(exchange, IDC_ICON_TIMEOUT, &SettingsStore::IconTimeOut);
    DDX_Check(exchange, IDC_ICON_USE_CACHE, store.UseCache_IconIdx);
}

bool COptionIcon::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ListIcon);
    changes.Record(kIconSettingsChanged);
    return true;
}
