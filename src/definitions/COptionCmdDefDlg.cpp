#include "definitions/COptionCmdDefDlg.h"

#include "app/AppServices.h"
#include "app/DefinitionEditing.h"
#include "definitions/CDlgDefCmdSet.h"
#include "resources/definitions/DefinitionIds.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kDefinitionsChanged = 49018;
constexpr const wchar_t* kModeValue = L"CmdDefMode";

struct ListButton {
    int id;
    const wchar_t* list;
};
// Laid out on the page by kind, not in the order the lists are read.
constexpr ListButton kListButtons[] = {
    {IDC_CMD_DEF_EXTERNAL, L"ExternalDefCommand.txt"},   {IDC_CMD_DEF_SCRIPT, L"ScriptCommand.txt"},
    {IDC_CMD_DEF_SCRIPT_NAVI, L"ScriptNaviCommand.txt"}, {IDC_CMD_DEF_EXTERNAL_USER, L"ExternalUserCommand.txt"},
    {IDC_CMD_DEF_USER_MENU, L"UserMenuCommand.txt"},     {IDC_CMD_DEF_PLUGIN, L"PlugInCommand.txt"},
};

}  // namespace

COptionCmdDefDlg::COptionCmdDefDlg(AppServices& app) : OptionPage(IDD_OPTION_CMD_DEF, app) {}

bool COptionCmdDefDlg::LoadGroups() {
    editMode_ = DirectReadInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, 0);
    return true;
}

void COptionCmdDefDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_CBIndex(exchange, IDC_CMD_DEF_MODE, editMode_);
}

void COptionCmdDefDlg::Edit(const wchar_t* listName) {
    if (!UpdateData(true)) return;
    const std::wstring path = app().directories.UserDirectory() + listName;
    OpenDefinitionFile(app(), editMode_, path, [&] {
        CDlgDefCmdSet editor(app());
        editor.filePath = path;
        editor.DoModal(hwnd());
    });
}

bool COptionCmdDefDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    for (const ListButton& button : kListButtons) {
        if (button.id != id) continue;
        Edit(button.list);
        return true;
    }
    return false;
}

// The code goes first: the mode is the page's own value and cannot refuse.
bool COptionCmdDefDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    changes.Record(kDefinitionsChanged);
    DirectWriteInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, editMode_);
    return true;
}
