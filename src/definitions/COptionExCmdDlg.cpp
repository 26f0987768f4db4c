#include "definitions/COptionExCmdDlg.h"

#include "app/AppServices.h"
#include "resources/definitions/DefinitionIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kStandardCommandsChanged = 49019;

}  // namespace

COptionExCmdDlg::COptionExCmdDlg(AppServices& app) : OptionPage(IDD_OPTION_EX_CMD, app) {}

bool COptionExCmdDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::StandardCommands);
    return true;
}

void COptionExCmdDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Radio(exchange, IDC_EX_CMD_NORMAL, store.StyleMode);
    DDX_Radio(exchange, IDC_EX_CMD_EXIT_NOTHING, store.ExitAction);
    DDX_Check(exchange, IDC_EX_CMD_DIV_TARGET, store.DivTarget);
    DDX_Check(exchange, IDC_EX_CMD_ALL_PANES, store.AllPaneTarget);
}

bool COptionExCmdDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::StandardCommands);
    changes.Record(kStandardCommandsChanged);
    return true;
}
