#include "pages/COptionContextMenuDlg.h"

#include "app/AppServices.h"
#include "pages/ContextMenuChecks.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kContextMenuChanged = 49037;

}  // namespace

COptionContextMenuDlg::COptionContextMenuDlg(AppServices& app) : OptionPage(IDD_OPTION_CONTEXT_MENU, app) {}

bool COptionContextMenuDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ContextMenu);
    return true;
}

void COptionContextMenuDlg::DoDataExchange(ui::DataExchange& exchange) {
    int32_t& value = app().store.ContextMenu;
    ContextMenuChecks checks = ChecksOfContextMenu(value);
    for (size_t i = 0; i < checks.size(); ++i) {
        int32_t ticked = checks[i];
        DDX_Check(exchange, IDC_CONTEXT_MENU_FIRST + static_cast<int>(i), ticked);
        checks[i] = ticked == BST_CHECKED;
    }
    if (exchange.saving())
        value = ContextMenuWithChecks(value, checks);
    else
        EnableChecks();
}

void COptionContextMenuDlg::EnableChecks() const {
    ContextMenuChecks ticked{};
    for (size_t i = 0; i < ticked.size(); ++i)
        ticked[i] = ui::Button(Item(IDC_CONTEXT_MENU_FIRST + static_cast<int>(i))).IsChecked();
    const ContextMenuChecks enabled = EnabledContextMenuChecks(ticked);
    for (size_t i = 0; i < enabled.size(); ++i)
        EnableWindow(Item(IDC_CONTEXT_MENU_FIRST + static_cast<int>(i)), enabled[i]);
}

// Only the first two checks of a place decide what the others may be.
bool COptionContextMenuDlg::OnCommand(int id, int code) {
    const int check = id - IDC_CONTEXT_MENU_FIRST;
    if (code != BN_CLICKED || check < 0 || check >= kContextMenuPlaces * kContextMenuChecksPerPlace) return false;
    if (check % kContextMenuChecksPerPlace < 2) EnableChecks();
    return true;
}

bool COptionContextMenuDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ContextMenu);
    changes.Record(kContextMenuChanged);
    return true;
}
