#include "definitions/CDlgDefCmdSet.h"

#include "app/AppServices.h"
#include "definitions/CDlgMacroHelperEx.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/MessageIds.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr const wchar_t* kHelpPage = L"7.Option/4.Interface/sub/02.html";
constexpr int kMacroTabPaths = 0;
constexpr int kMacroTabMacros = 1;
constexpr int kMacroTabEnvironment = 2;

struct Column {
    const wchar_t* caption;
    int width;
};
constexpr Column kColumns[] = {
    {L"ID", 60}, {L"Communication mode", 40}, {L"UI mode", 40}, {L"Command", 180}, {L"Comment", 120},
};

// Every control that shows a part of the current row; none is usable without one.
constexpr int kDetailControls[] = {
    IDC_DEF_CMD_ID,
    IDC_DEF_CMD_COMMAND,
    IDC_DEF_CMD_COMMENT,
    IDC_DEF_CMD_MACRO,
    IDC_DEF_CMD_NO_COUPLING,
    IDC_DEF_CMD_DRAG_DROP,
    IDC_DEF_CMD_COPY_DATA,
    IDC_DEF_CMD_SHARED_MEMORY,
    IDC_DEF_CMD_REAL_FOLDER,
    IDC_DEF_CMD_ANY_FOLDER,
    IDC_DEF_CMD_CURRENT_FOLDER,
    IDC_DEF_CMD_SELECTED_ITEMS,
    IDC_DEF_CMD_TARGET_FOLDER,
    IDC_DEF_CMD_SELECTION_RULES,
    IDC_DEF_CMD_ALWAYS,
    IDC_DEF_CMD_REAL_ITEMS,
    IDC_DEF_CMD_VIRTUAL_ITEMS,
    IDC_DEF_CMD_NEEDS_FILE,
    IDC_DEF_CMD_NEEDS_FOLDER,
};
// Those of them that depend on no other choice: the first ten.
constexpr size_t kIndependentDetails = 10;

bool IsCommunicationControl(int id) {
    return (id >= IDC_DEF_CMD_NO_COUPLING && id <= IDC_DEF_CMD_SHARED_MEMORY) ||
           (id >= IDC_DEF_CMD_CURRENT_FOLDER && id <= IDC_DEF_CMD_TARGET_FOLDER);
}

bool IsConditionControl(int id) {
    return (id >= IDC_DEF_CMD_REAL_FOLDER && id <= IDC_DEF_CMD_VIRTUAL_ITEMS) || id == IDC_DEF_CMD_NEEDS_FILE ||
           id == IDC_DEF_CMD_NEEDS_FOLDER;
}

}  // namespace

CDlgDefCmdSet::CDlgDefCmdSet(AppServices& app) : CDlgDefinitionEditor(IDD_DEF_CMD_SET, app, kHelpPage) {}

bool CDlgDefCmdSet::OnInitDialog() {
    filling_ = true;
    const bool focusFirst = CDlgDefinitionEditor::OnInitDialog();
    filling_ = false;
    list_ = ui::ListView(Item(IDC_DEF_CMD_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i)
        list_.InsertColumn(i, kColumns[i].caption, kColumns[i].width);
    document_ = CommandListDocument(CommandListRange(filePath));
    SetDlgItemTextW(hwnd(), IDC_DEF_CMD_PATH, filePath.c_str());
    SetDlgItemTextW(hwnd(), IDC_DEF_CMD_RANGE, CommandRangeLabel(document_.range()).c_str());
    if (!document_.Load(filePath))
        platform::Current().prompts.ShowMessage(L"Cannot open " + filePath, platform::kStyleOk);
    RowsChanged();
    EnableDetails(false);
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void CDlgDefCmdSet::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_DEF_CMD_ID, details_.id);
    DDX_Text(exchange, IDC_DEF_CMD_COMMAND, details_.commandLine);
    DDV_MaxChars(exchange, details_.commandLine, 250);
    DDX_Text(exchange, IDC_DEF_CMD_COMMENT, details_.comment);
    DDV_MaxChars(exchange, details_.comment, 80);
    DDX_Radio(exchange, IDC_DEF_CMD_NO_COUPLING, details_.communicationMode);
    DDX_Check(exchange, IDC_DEF_CMD_CURRENT_FOLDER, details_.currentFolder);
    DDX_Check(exchange, IDC_DEF_CMD_SELECTED_ITEMS, details_.selectedItems);
    DDX_Check(exchange, IDC_DEF_CMD_TARGET_FOLDER, details_.targetFolder);
    DDX_Radio(exchange, IDC_DEF_CMD_REAL_FOLDER, details_.folderCondition);
    DDX_Radio(exchange, IDC_DEF_CMD_SELECTION_RULES, details_.selectionRule);
    DDX_Radio(exchange, IDC_DEF_CMD_REAL_ITEMS, details_.virtualRule);
    DDX_Check(exchange, IDC_DEF_CMD_NEEDS_FILE, details_.needsFile);
    DDX_Check(exchange, IDC_DEF_CMD_NEEDS_FOLDER, details_.needsFolder);
}

int CDlgDefCmdSet::CurrentRow() const {
    if (!list_) return -1;
    return list_.GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED);
}

void CDlgDefCmdSet::SelectRow(int row) {
    list_.SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (row >= 0) {
        list_.SelectRow(row);
        list_.EnsureVisible(row);
    }
    ShowCurrentRow();
}

// The list asks for each text as it draws it; it only needs to know how many rows there are.
void CDlgDefCmdSet::RowsChanged() {
    list_.Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(document_.Count()), LVSICF_NOSCROLL);
    InvalidateRect(list_.hwnd(), nullptr, FALSE);
}

void CDlgDefCmdSet::ShowCurrentRow() {
    const int row = CurrentRow();
    if (row < 0) {
        EnableDetails(false);
        return;
    }
    EnableDetails(true);
    details_ = ReadCommandDetails(document_.rows()[static_cast<size_t>(row)]);
    filling_ = true;
    UpdateData(false);
    filling_ = false;
    EnableDependents();
}

void CDlgDefCmdSet::EnableDetails(bool enable) {
    for (size_t i = 0; i < std::size(kDetailControls); ++i)
        EnableWindow(Item(kDetailControls[i]), enable && i < kIndependentDetails);
}

void CDlgDefCmdSet::EnableDependents() {
    const CommandDetailStates states = EnabledDetails(details_);
    for (int id = IDC_DEF_CMD_CURRENT_FOLDER; id <= IDC_DEF_CMD_TARGET_FOLDER; ++id)
        EnableWindow(Item(id), states.dropFlags);
    for (int id = IDC_DEF_CMD_SELECTION_RULES; id <= IDC_DEF_CMD_VIRTUAL_ITEMS; ++id)
        EnableWindow(Item(id), states.conditionRules);
    EnableWindow(Item(IDC_DEF_CMD_NEEDS_FILE), states.selectionFlags);
    EnableWindow(Item(IDC_DEF_CMD_NEEDS_FOLDER), states.selectionFlags);
}

template <class Write>
void CDlgDefCmdSet::WriteThrough(Write write) {
    if (filling_) return;
    const int row = CurrentRow();
    if (row < 0 || !UpdateData(true)) return;
    write(row);
    list_.Send(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
}

// The new row is selected, which shows it in the controls, and then written back from them as an edit
// would write it.
void CDlgDefCmdSet::AddRow() {
    const int row = document_.Add();
    RowsChanged();
    SelectRow(row);
    WriteThrough([this](int current) { document_.WriteDetails(current, details_); });
}

void CDlgDefCmdSet::DeleteRow() {
    const int row = list_.GetNextItem(-1, LVNI_FOCUSED);
    if (row < 0) return;
    const int next = document_.Delete(row);
    RowsChanged();
    SelectRow(next);
}

// The macro replaces the selection of the command line, so that Undo takes it back; the edit's change
// notice writes it into the row.
void CDlgDefCmdSet::InsertMacro() {
    CDlgMacroHelperEx helper(app_);
    helper.mode = kMacroTabPaths;
    helper.enabled[kMacroTabPaths] = helper.enabled[kMacroTabMacros] = helper.enabled[kMacroTabEnvironment] = true;
    if (helper.DoModal(hwnd()) != IDOK || helper.result.empty()) return;
    SendDlgItemMessageW(hwnd(), IDC_DEF_CMD_COMMAND, EM_REPLACESEL, TRUE,
                        reinterpret_cast<LPARAM>(helper.result.c_str()));
}

bool CDlgDefCmdSet::OnCommand(int id, int code) {
    if (code == EN_CHANGE) {
        switch (id) {
            case IDC_DEF_CMD_ID:
                WriteThrough([this](int row) { document_.SetId(row, details_.id); });
                return true;
            case IDC_DEF_CMD_COMMAND:
                WriteThrough([this](int row) { document_.SetCommandLine(row, details_.commandLine); });
                return true;
            case IDC_DEF_CMD_COMMENT:
                WriteThrough([this](int row) { document_.SetComment(row, details_.comment); });
                return true;
            default:
                return false;
        }
    }
    if (code != BN_CLICKED) return false;
    if (IsCommunicationControl(id)) {
        WriteThrough([this](int row) { document_.SetCommunication(row, details_); });
        EnableDependents();
        return true;
    }
    if (IsConditionControl(id)) {
        WriteThrough([this](int row) { document_.SetCondition(row, details_); });
        EnableDependents();
        return true;
    }
    switch (id) {
        case IDC_DEF_CMD_ADD:
            AddRow();
            return true;
        case IDC_DEF_CMD_DELETE:
            DeleteRow();
            return true;
        case IDC_DEF_CMD_MACRO:
            InsertMacro();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> CDlgDefCmdSet::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_DEF_CMD_LIST) return std::nullopt;
    if (header.code == LVN_GETDISPINFOW) {
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)).item;
        if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0)
            lstrcpynW(item.pszText, document_.Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
        return 0;
    }
    if (header.code == LVN_ITEMCHANGED || header.code == LVN_ODSTATECHANGED) {
        ShowCurrentRow();
        return 0;
    }
    return std::nullopt;
}

// Every row is checked before the file is opened, so a refused row leaves the file as it was.
void CDlgDefCmdSet::OnOK() {
    if (!UpdateData(true)) return;
    if (app_.messages.Confirm(app_.store.Message, kMsgSaveCommandsQuestion) == platform::kAnswerNo) return;
    platform::Prompts& prompts = platform::Current().prompts;
    if (const std::optional<CommandRowError> error = document_.FirstError()) {
        prompts.ShowMessage(error->message, platform::kStyleOk);
        SelectRow(error->row);
        return;
    }
    if (!document_.Save(filePath)) {
        prompts.ShowMessage(L"Cannot open " + filePath, platform::kStyleOk);
        return;
    }
    EndDialog(IDOK);
}
