#include "definitions/COptionMenuDlg.h"

#include "app/AppServices.h"
#include "app/DefinitionEditing.h"
#include "definitions/CDlgMenuEdit.h"
#include "definitions/MenuFolder.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/MessageIds.h"
#include "services/ProcessLaunch.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kDefinitionsChanged = 49018;
constexpr const wchar_t* kModeValue = L"MenuDefMode";
constexpr int kShowNormal = 1;

}  // namespace

COptionMenuDlg::COptionMenuDlg(AppServices& app) : OptionPage(IDD_OPTION_MENU, app) {}

bool COptionMenuDlg::LoadGroups() {
    list_ = ui::ListView(Item(IDC_MENU_PAGE_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, L"File Name", 200);
    list_.InsertColumn(1, L"Explanation", 320);
    int row = 0;
    for (const MenuFileEntry& file : ListMenuFiles(app().directories.UserDirectory() + L"Menu\\")) {
        list_.InsertItem(row, file.name);
        list_.SetItemText(row++, 1, file.explanation);
    }
    editMode_ = DirectReadInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, 0);
    return true;
}

void COptionMenuDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_CBIndex(exchange, IDC_MENU_PAGE_MODE, editMode_);
}

void COptionMenuDlg::EditSelected() {
    const int row = list_.GetSelectedRow();
    if (row < 0) {
        platform::Current().prompts.ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
        return;
    }
    if (!UpdateData(true)) return;
    const std::wstring path = app().directories.UserDirectory() + L"Menu\\" + list_.GetItemText(row, 0);
    OpenDefinitionFile(app(), editMode_, path, [&] {
        CDlgMenuEdit editor(app());
        editor.filePath = path;
        editor.DoModal(hwnd());
    });
}

bool COptionMenuDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_MENU_PAGE_EDIT:
            EditSelected();
            return true;
        case IDC_MENU_PAGE_OPEN_FOLDER:
            ShellLaunch(app().directories.UserDirectory() + L"Menu", L"", L"", false, kShowNormal);
            return true;
        case IDC_MENU_PAGE_COMMAND_LIST:
            ShellLaunch(app().directories.ProgramDirectory() + L"..\\..\\AllCommand.txt", L"", L"", false, kShowNormal);
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionMenuDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_MENU_PAGE_LIST || header.code != NM_DBLCLK) return std::nullopt;
    EditSelected();
    return 0;
}

bool COptionMenuDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    changes.Record(kDefinitionsChanged);
    DirectWriteInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, editMode_);
    return true;
}
