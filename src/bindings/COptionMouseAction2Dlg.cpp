#include "bindings/COptionMouseAction2Dlg.h"

#include <array>
#include <string>

#include "app/AppServices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/PathHelpers.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

using LM = ListMouseValues;

constexpr uint16_t kBlankAreaChanged = 49039;
constexpr int kMaxScriptName = 250;
// The fields in the order of their controls: click, double click, middle click, middle double click.
constexpr std::array<std::wstring SettingsStore::*, 4> kScripts = {&LM::SpaceClk, &LM::SpaceDblClk, &LM::SpaceMClk,
                                                                   &LM::SpaceMDblClk};

}  // namespace

COptionMouseAction2Dlg::COptionMouseAction2Dlg(AppServices& app) : OptionPage(IDD_OPTION_MOUSE_ACTION2, app) {}

bool COptionMouseAction2Dlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::BlankArea);
    return true;
}

void COptionMouseAction2Dlg::DoDataExchange(ui::DataExchange& exchange) {
    for (size_t slot = 0; slot < kScripts.size(); ++slot) {
        std::wstring& name = app().store.*kScripts[slot];
        DDX_Text(exchange, IDC_BLANK_AREA_FIRST_SCRIPT + static_cast<int>(slot), name);
        DDV_MaxChars(exchange, name, kMaxScriptName);
    }
}

// The host looks for the script in the user's Script folder, so only the file's name is kept,
// wherever the user found it.
void COptionMouseAction2Dlg::ChooseScript(int slot) {
    if (!UpdateData(true)) return;
    std::wstring& name = app().store.*kScripts[static_cast<size_t>(slot)];
    const platform::FolderChoice choice = platform::Current().prompts.ChooseFileToOpen(
        L"File open", L"*.*|*.*|", app().directories.UserDirectory() + L"Script\\" + name);
    if (!choice.confirmed) return;
    name = FilePart(choice.path);
    UpdateData(false);
}

bool COptionMouseAction2Dlg::OnCommand(int id, int code) {
    const int slot = id - IDC_BLANK_AREA_FIRST_BROWSE;
    if (code != BN_CLICKED || slot < 0 || slot >= static_cast<int>(kScripts.size())) return false;
    ChooseScript(slot);
    return true;
}

bool COptionMouseAction2Dlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::BlankArea);
    changes.Record(kBlankAreaChanged);
    return true;
}
