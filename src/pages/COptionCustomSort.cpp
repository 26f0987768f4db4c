#include "pages/COptionCustomSort.h"

#include "app/AppServices.h"
#include "pages/ListViewChoices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kListChanged = 49000;

}  // namespace

COptionCustomSort::COptionCustomSort(AppServices& app) : OptionPage(IDD_OPTION_CUSTOM_SORT, app) {}

bool COptionCustomSort::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::CustomSort);
    return true;
}

void COptionCustomSort::DoDataExchange(ui::DataExchange& exchange) {
    DDX_CheckBits(exchange, kCustomSortChecks, app().store.CustomSortFlag);
}

bool COptionCustomSort::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    int32_t& flags = app().store.CustomSortFlag;
    flags = static_cast<int32_t>(
        CustomSortFlagsFor(static_cast<uint32_t>(flags), platform::Current().environment.SystemVersion()));
    SaveGroup(app().store, SettingsGroup::CustomSort);
    changes.Record(kListChanged);
    return true;
}
