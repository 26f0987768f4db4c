#include "definitions/CDlgExRunSet.h"

#include <vector>

#include "app/AppServices.h"
#include "definitions/CDlgRunSet.h"
#include "definitions/RunDefinition.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/MessageIds.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr const wchar_t* kHelpPage = L"7.Option/4.Interface/sub/01.html";
// The seventh of the confirmations: saving an extension-run definition.
constexpr uint16_t kConfirmSave = kFirstConfirmation + 2 * 6;
constexpr int kFilterLimit = 250;
constexpr int kFilterColumn = 0;
constexpr int kCommandColumn = 1;

}  // namespace

CDlgExRunSet::CDlgExRunSet(AppServices& app) : CDlgDefinitionEditor(IDD_EX_RUN_SET, app, kHelpPage) {}

bool CDlgExRunSet::OnInitDialog() {
    const bool focusFirst = CDlgDefinitionEditor::OnInitDialog();
    SetDlgItemTextW(hwnd(), IDC_EX_RUN_SET_PATH, filePath.c_str());
    commandBrowse_.Attach(hwnd(), IDC_EX_RUN_SET_COMMAND, runset::FileChooser());
    list_ = ui::ListView(Item(IDC_EX_RUN_SET_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(kFilterColumn, L"Extension", 180);
    list_.InsertColumn(kCommandColumn, L"Command", 300);
    std::vector<ExRunRow> rows;
    if (!ReadExRunDefinition(filePath, rows)) runset::TellCannotOpen(filePath);
    for (const ExRunRow& row : rows) {
        const int at = list_.InsertItem(list_.GetItemCount(), row.filter);
        list_.SetItemText(at, kCommandColumn, row.command);
    }
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    if (rows.empty() && !runset::KeepEditingWithout(app_, L"ExRun")) EndDialog(IDCANCEL);
    return focusFirst;
}

void CDlgExRunSet::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_EX_RUN_SET_FILTER, filter_);
    DDV_MaxChars(exchange, filter_, kFilterLimit);
    DDX_Text(exchange, IDC_EX_RUN_SET_COMMAND, command_);
}

void CDlgExRunSet::ShowRow(int row) {
    showing_ = true;
    SetDlgItemTextW(hwnd(), IDC_EX_RUN_SET_FILTER, list_.GetItemText(row, kFilterColumn).c_str());
    SetDlgItemTextW(hwnd(), IDC_EX_RUN_SET_COMMAND, list_.GetItemText(row, kCommandColumn).c_str());
    showing_ = false;
}

void CDlgExRunSet::AddRow() {
    const int row = list_.InsertItem(list_.GetItemCount(), L"New Extention");
    list_.SetItemText(row, kCommandColumn, L"New Command");
    list_.SelectRow(row);
    list_.EnsureVisible(row);
}

// The focused row changes places with its neighbour and stays focused.
void CDlgExRunSet::MoveRow(int step) {
    const int row = FocusedRow();
    const int other = row + step;
    if (row < 0 || other < 0 || other >= list_.GetItemCount()) return;
    for (int column : {kFilterColumn, kCommandColumn}) {
        const std::wstring text = list_.GetItemText(row, column);
        list_.SetItemText(row, column, list_.GetItemText(other, column));
        list_.SetItemText(other, column, text);
    }
    list_.SelectRow(other);
    list_.EnsureVisible(other);
}

// No question: the row goes, and the row the list then focuses is selected.
void CDlgExRunSet::DeleteRow() {
    const int row = FocusedRow();
    if (row < 0) return;
    list_.DeleteItem(row);
    const int focused = FocusedRow();
    if (focused >= 0) list_.SelectRow(focused);
}

void CDlgExRunSet::EditChanged(int editId, int column) {
    const int row = FocusedRow();
    if (showing_ || row < 0) return;
    list_.SetItemText(row, column, ui::ControlText(Item(editId)));
}

bool CDlgExRunSet::OnCommand(int id, int code) {
    if (code == EN_CHANGE && (id == IDC_EX_RUN_SET_FILTER || id == IDC_EX_RUN_SET_COMMAND)) {
        EditChanged(id, id == IDC_EX_RUN_SET_FILTER ? kFilterColumn : kCommandColumn);
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_EX_RUN_SET_ADD:
            AddRow();
            return true;
        case IDC_EX_RUN_SET_UP:
            MoveRow(-1);
            return true;
        case IDC_EX_RUN_SET_DOWN:
            MoveRow(1);
            return true;
        case IDC_EX_RUN_SET_DELETE:
            DeleteRow();
            return true;
        case IDC_EX_RUN_SET_MACRO:
            runset::InsertMacro(app_, hwnd(), IDC_EX_RUN_SET_COMMAND, 1, {1, 2});
            return true;
        case IDC_EX_RUN_SET_COMMAND_TO_MACRO:
            runset::ReplaceWithMacroPath(app_, hwnd(), IDC_EX_RUN_SET_COMMAND);
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> CDlgExRunSet::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_EX_RUN_SET_LIST || header.code != LVN_ITEMCHANGED) return std::nullopt;
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    const bool focusCame =
        (change.uChanged & LVIF_STATE) && (change.uNewState & LVIS_FOCUSED) && !(change.uOldState & LVIS_FOCUSED);
    if (focusCame && change.iItem >= 0) ShowRow(change.iItem);
    return 0;
}

void CDlgExRunSet::OnOK() {
    if (!UpdateData(true)) return;
    std::vector<ExRunRow> rows;
    for (int row = 0; row < list_.GetItemCount(); ++row)
        rows.push_back({list_.GetItemText(row, kFilterColumn), list_.GetItemText(row, kCommandColumn)});
    if (runset::ConfirmAndSave(app_, kConfirmSave, filePath, [&] { return WriteExRunDefinition(filePath, rows); }))
        EndDialog(IDOK);
}
