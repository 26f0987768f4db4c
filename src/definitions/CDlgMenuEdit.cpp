#include "definitions/CDlgMenuEdit.h"

#include "app/AppServices.h"
#include "app/DefinitionEditing.h"
#include "definitions/CDlgMenuCommand.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr const wchar_t* kHelpPage = L"7.Option/4.Interface/sub/04.html";

struct Column {
    const wchar_t* caption;
    int width;
};
constexpr Column kColumns[] = {{L"Command", 100}, {L"Menu text", 165}, {L"Target text", 160}, {L"Check message", 160}};

// The popup menus of the load test, made as the parser asks.
class PopupMenuBuilder : public MenuBuilder {
public:
    Menu CreatePopup() override { return reinterpret_cast<Menu>(CreatePopupMenu()); }
    void AppendItem(Menu menu, const std::wstring& text, uint32_t id) override {
        AppendMenuW(Handle(menu), MF_STRING, id, text.c_str());
    }
    void AppendSeparator(Menu menu) override { AppendMenuW(Handle(menu), MF_SEPARATOR, 0, nullptr); }
    void AppendPopup(Menu menu, Menu popup, const std::wstring& text) override {
        AppendMenuW(Handle(menu), MF_POPUP, popup, text.c_str());
    }

private:
    static HMENU Handle(Menu menu) { return reinterpret_cast<HMENU>(menu); }
};

// The centre of a window's client area on the screen, each coordinate halved in whole numbers.
POINT ClientCentre(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    POINT corners[2] = {{client.left, client.top}, {client.right, client.bottom}};
    MapWindowPoints(window, nullptr, corners, 2);
    return {(corners[0].x + corners[1].x) / 2, (corners[0].y + corners[1].y) / 2};
}

}  // namespace

// The list learns the new count; the rows it shows are drawn again from the texts.
void CDlgMenuEdit::ListRows::Shown() const {
    list_.Send(LVM_SETITEMCOUNT, lines_.size(), LVSICF_NOSCROLL);
    InvalidateRect(list_.hwnd(), nullptr, FALSE);
}

void CDlgMenuEdit::ListRows::SetLine(int row, const MenuLine& line) {
    lines_[static_cast<size_t>(row)] = line;
    list_.Send(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
}

void CDlgMenuEdit::ListRows::Insert(int row, const MenuLine& line) {
    lines_.insert(lines_.begin() + row, line);
    Shown();
}

void CDlgMenuEdit::ListRows::Delete(int row) {
    lines_.erase(lines_.begin() + row);
    Shown();
}

void CDlgMenuEdit::ListRows::Assign(std::vector<MenuLine> lines) {
    lines_ = std::move(lines);
    Shown();
}

void CDlgMenuEdit::ListRows::Select(int row) {
    list_.SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (row < 0) return;
    list_.SelectRow(row);
    list_.EnsureVisible(row);
}

const std::wstring& CDlgMenuEdit::ListRows::Text(int row, int column) const {
    const MenuLine& line = lines_[static_cast<size_t>(row)];
    switch (column) {
        case 0:
            return line.command;
        case 1:
            return line.text;
        case 2:
            return line.target;
        default:
            return line.check;
    }
}

CDlgMenuEdit::CDlgMenuEdit(AppServices& app) : CDlgDefinitionEditor(IDD_MENU_EDIT, app, kHelpPage) {}

bool CDlgMenuEdit::OnInitDialog() {
    const bool focusFirst = CDlgDefinitionEditor::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    list_ = ui::ListView(Item(IDC_MENU_EDIT_LIST));
    const DWORD styles = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES;
    list_.SetExtendedStyle(styles, styles);
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i)
        list_.InsertColumn(i, kColumns[i].caption, kColumns[i].width);
    Load();
    return focusFirst;
}

void CDlgMenuEdit::Load() {
    rows_.Assign(ReadMenuLines(filePath));
}

void CDlgMenuEdit::AddLine() {
    CDlgMenuCommand line(app_);
    line.command = MenuKeywordTable[0].keyword;
    if (line.DoModal(hwnd()) != IDOK) return;
    InsertMenuRow(rows_, {line.command, line.text, line.target, L""});
}

void CDlgMenuEdit::EditLine() {
    const int row = rows_.Selected();
    if (row < 0) return;
    MenuLine current = rows_.Line(row);
    CDlgMenuCommand line(app_);
    line.command = current.command;
    line.text = current.text;
    line.target = current.target;
    if (line.DoModal(hwnd()) != IDOK) return;
    rows_.SetLine(row, {line.command, line.text, line.target, current.check});
}

void CDlgMenuEdit::Save() {
    platform::Prompts& prompts = platform::Current().prompts;
    if (!SaveMenuRows(rows_, filePath)) {
        prompts.ShowMessage(L"Could not save file.\n" + filePath, platform::kStyleOk);
        return;
    }
    prompts.ShowMessage(L"I have saved the file.\n" + filePath, platform::kStyleInformation);
}

// Each row is checked against command lists read anew, so that a list edited meanwhile counts.
void CDlgMenuEdit::CheckRows() {
    for (int row = 0; row < rows_.Count(); ++row) {
        app_.commands.LoadCommandLists(app_.directories.UserDirectory());
        MenuLine line = rows_.Line(row);
        line.check = CheckMenuLine(line, app_.commands, app_.resourceModule.get(), app_.directories);
        rows_.SetLine(row, line);
    }
}

// The file on disk, not the list, is shown as the popup menu it makes; the choice goes nowhere.
void CDlgMenuEdit::LoadTest() {
    if (MenuTestRefused(rows_)) {
        platform::Current().prompts.ShowMessage(
            L"Sorry! I cannot create DIRECTORY mode.\nThis menu definition file, please read in Qor.exe.",
            platform::kStyleOk);
        return;
    }
    HMENU menu = CreatePopupMenu();
    PopupMenuBuilder builder;
    MenuPosition position = MenuPosition::Desktop;
    if (ParseMenuFile(filePath, builder, reinterpret_cast<MenuBuilder::Menu>(menu), &position, true, app_.directories,
                      app_.menuCommands)) {
        POINT point = {};
        switch (position) {
            case MenuPosition::Mouse:
                GetCursorPos(&point);
                break;
            case MenuPosition::Desktop:
                point = ClientCentre(GetDesktopWindow());
                break;
            case MenuPosition::Parent:
                point = ClientCentre(hwnd());
                break;
            case MenuPosition::Main:
                point = ClientCentre(reinterpret_cast<HWND>(platform::Current().windows.MainWindow()));
                break;
        }
        TrackPopupMenu(menu, TPM_RIGHTBUTTON | TPM_RETURNCMD, point.x, point.y, 0, hwnd(), nullptr);
    }
    DestroyMenu(menu);
}

bool CDlgMenuEdit::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_MENU_EDIT_ADD:
            AddLine();
            return true;
        case IDC_MENU_EDIT_EDIT:
            EditLine();
            return true;
        case IDC_MENU_EDIT_DELETE:
            DeleteMenuRow(rows_);
            return true;
        case IDC_MENU_EDIT_COPY:
            CopyMenuRow(rows_, clipboard_);
            return true;
        case IDC_MENU_EDIT_PASTE:
            PasteMenuRow(rows_, clipboard_);
            return true;
        case IDC_MENU_EDIT_UP:
            MoveMenuRow(rows_, -1);
            return true;
        case IDC_MENU_EDIT_DOWN:
            MoveMenuRow(rows_, 1);
            return true;
        case IDC_MENU_EDIT_BY_EDITOR:
            RunEditorScript(app_, filePath);
            return true;
        case IDC_MENU_EDIT_RELOAD:
            Load();
            return true;
        case IDC_MENU_EDIT_CHECK:
            CheckRows();
            return true;
        case IDC_MENU_EDIT_TEST:
            LoadTest();
            return true;
        case IDC_MENU_EDIT_SAVE:
            Save();
            return true;
        case IDC_MENU_EDIT_SAVE_AS:
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> CDlgMenuEdit::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_MENU_EDIT_LIST) return std::nullopt;
    if (header.code == LVN_GETDISPINFOW) {
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)).item;
        if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0 && item.iItem >= 0 && item.iItem < rows_.Count())
            lstrcpynW(item.pszText, rows_.Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
        return 0;
    }
    if (header.code != NM_DBLCLK) return std::nullopt;
    EditLine();
    return 0;
}
