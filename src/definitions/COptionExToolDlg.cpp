#include "definitions/COptionExToolDlg.h"

#include "app/AppServices.h"
#include "app/DefinitionEditing.h"
#include "app/SniffDefinitionFile.h"
#include "definitions/CDlgExRunSet.h"
#include "definitions/CDlgRunSet.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/MessageIds.h"
#include "services/ProcessLaunch.h"
#include "ui/DataExchange.h"

namespace {

constexpr const wchar_t* kModeValue = L"ExToolMode";
constexpr int kShowNormal = 1;
constexpr int kFileColumnWidth = 280;
constexpr int kShortcutButtons[] = {IDC_EX_TOOL_EDITOR, IDC_EX_TOOL_BINARY_EDITOR, IDC_EX_TOOL_VIEWER,
                                    IDC_EX_TOOL_GROUP, IDC_EX_TOOL_EXPLANATION};
constexpr int kListControls[] = {IDC_EX_TOOL_LIST, IDC_EX_TOOL_EDIT, IDC_EX_TOOL_OPEN_FOLDER};

}  // namespace

COptionExToolDlg::COptionExToolDlg(AppServices& app) : OptionPage(IDD_OPTION_EX_TOOL, app) {}

bool COptionExToolDlg::LoadGroups() {
    list_ = ui::ListView(Item(IDC_EX_TOOL_LIST));
    editMode_ = DirectReadInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, 0);
    ShowView();
    return true;
}

void COptionExToolDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_CBIndex(exchange, IDC_EX_TOOL_MODE, editMode_);
    DDX_Check(exchange, IDC_EX_TOOL_SHOW_ALL, showAll_);
}

// Either the three scripts everybody edits, or the whole folder. The list's column goes in again
// each time the folder is shown, so the list grows by a column each time.
void COptionExToolDlg::ShowView() {
    const bool all = showAll_ == 1;
    if (all) {
        list_.DeleteAllItems();
        list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
        list_.InsertColumn(0, L"File Name", kFileColumnWidth);
        const std::wstring folder = app().directories.UserDirectory() + L"Script\\";
        for (const platform::FindData& found :
             platform::Current().files.FindAll(folder + L"*", platform::FindStyle::Plain)) {
            if (found.name == L"." || found.name == L".." || (found.attributes & platform::kAttributeDirectory))
                continue;
            list_.InsertItem(list_.GetItemCount(), found.name);
        }
    }
    for (int id : kShortcutButtons) ShowWindow(Item(id), all ? SW_HIDE : SW_SHOW);
    for (int id : kListControls) ShowWindow(Item(id), all ? SW_SHOW : SW_HIDE);
}

void COptionExToolDlg::OpenScript(const std::wstring& name) {
    if (!UpdateData(true)) return;
    const std::wstring path = app().directories.UserDirectory() + L"Script\\" + name;
    OpenDefinitionFile(app(), editMode_, path, [&] {
        switch (SniffDefinitionFile(path)) {
            case 1: {
                CDlgExRunSet editor(app());
                editor.filePath = path;
                editor.DoModal(hwnd());
                break;
            }
            case 2: {
                CDlgRunSet editor(app());
                editor.filePath = path;
                editor.DoModal(hwnd());
                break;
            }
            default:
                RunEditorScript(app(), path);
                break;
        }
    });
}

void COptionExToolDlg::EditSelected() {
    const int row = list_.GetNextItem(-1, LVNI_FOCUSED);
    if (row < 0) {
        platform::Current().prompts.ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
        return;
    }
    OpenScript(list_.GetItemText(row, 0));
}

bool COptionExToolDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_EX_TOOL_SHOW_ALL:
            showAll_ = IsDlgButtonChecked(hwnd(), IDC_EX_TOOL_SHOW_ALL) == BST_CHECKED ? 1 : 0;
            ShowView();
            return true;
        case IDC_EX_TOOL_EDITOR:
            OpenScript(L"Editor.txt");
            return true;
        case IDC_EX_TOOL_BINARY_EDITOR:
            OpenScript(L"BinEdit.txt");
            return true;
        case IDC_EX_TOOL_VIEWER:
            OpenScript(L"Viewer.txt");
            return true;
        case IDC_EX_TOOL_EDIT:
            EditSelected();
            return true;
        case IDC_EX_TOOL_OPEN_FOLDER:
            ShellLaunch(app().directories.UserDirectory() + L"Script", L"", L"", false, kShowNormal);
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionExToolDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_EX_TOOL_LIST || header.code != NM_DBLCLK) return std::nullopt;
    EditSelected();
    return 0;
}

// The mode is the page's alone: the host rereads nothing.
bool COptionExToolDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    DirectWriteInt(app().commandOptionRoot + L"\\OptionPage", kModeValue, editMode_);
    return true;
}
