#include "definitions/CDlgMenuCommand.h"

#include "app/AppServices.h"
#include "bindings/COptionKeySetting.h"
#include "definitions/CDlgMacroHelperEx.h"
#include "definitions/MenuCommandFields.h"
#include "definitions/MenuDefinition.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/CRuntime.h"
#include "services/MessageIds.h"
#include "settings/PathRoots.h"
#include "ui/ComboBox.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

// Posted after a choice in the keyword box, whose text changes only after the notice.
constexpr UINT kKeywordChosen = 0x8032;
constexpr int kFieldLimit = 1024;

// The macro helper's tabs: the paths and macros for the macro buttons, the words of one argument kind.
constexpr int kMacroTabPaths = 0;
constexpr int kMacroTabMacros = 1;
constexpr int kMacroTabEnvironment = 2;
constexpr int kMacroTabOnOff = 3;
constexpr int kMacroTabPositions = 4;

std::wstring JoinedBehind(const std::wstring& list, const std::wstring& item) {
    return list.empty() ? item : list + L"," + item;
}

}  // namespace

CDlgMenuCommand::CDlgMenuCommand(AppServices& app) : ui::Dialog(IDD_MENU_COMMAND), app_(app) {}

std::optional<LRESULT> CDlgMenuCommand::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kKeywordChosen) {
        ShowKeyword();
        return 0;
    }
    return ui::Dialog::OnMessage(message, wParam, lParam);
}

bool CDlgMenuCommand::OnInitDialog() {
    ui::ComboBox keywords(Item(IDC_MENU_COMMAND_KEYWORD));
    for (const MenuKeywordRow& row : MenuKeywordTable) keywords.AddString(row.keyword);
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    ShowKeyword();
    return focusFirst;
}

void CDlgMenuCommand::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_MENU_COMMAND_KEYWORD, command);
    DDX_Text(exchange, IDC_MENU_COMMAND_TEXT, text);
    DDV_MaxChars(exchange, text, kFieldLimit);
    DDX_Text(exchange, IDC_MENU_COMMAND_TARGET, target);
    DDV_MaxChars(exchange, target, kFieldLimit);
    DDX_Check(exchange, IDC_MENU_COMMAND_MACRO_FLAG, expandMacros);
}

int CDlgMenuCommand::KeywordRow() const {
    return FindMenuKeywordRow(ui::ControlText(Item(IDC_MENU_COMMAND_KEYWORD)));
}

// The controls and labels follow the keyword in the box.
void CDlgMenuCommand::ShowKeyword() {
    const int row = KeywordRow();
    const MenuCommandControls controls = ControlsForKeyword(row);
    EnableWindow(Item(IDC_MENU_COMMAND_TEXT), controls.text);
    EnableWindow(Item(IDC_MENU_COMMAND_TARGET), controls.target);
    EnableWindow(Item(IDC_MENU_COMMAND_PICK_TEXT), controls.pickText);
    EnableWindow(Item(IDC_MENU_COMMAND_PICK_TARGET), controls.pickTarget);
    EnableWindow(Item(IDC_MENU_COMMAND_MACRO_TEXT), controls.macroText);
    EnableWindow(Item(IDC_MENU_COMMAND_MACRO_TARGET), controls.macroTarget);
    const MenuKeywordRow& keyword = MenuKeywordTable[row];
    SetDlgItemTextW(hwnd(), IDC_MENU_COMMAND_FIRST_LABEL, keyword.firstLabel);
    SetDlgItemTextW(hwnd(), IDC_MENU_COMMAND_SECOND_LABEL, keyword.secondLabel);
    SetDlgItemTextW(hwnd(), IDC_MENU_COMMAND_EXPLANATION, keyword.explanation);
}

// The picker opens on the identifier of a single command; for a list of commands it adds one more.
void CDlgMenuCommand::PickCommands() {
    COptionKeySetting& picker = COptionKeySetting::Shared(app_);
    const bool single = KeywordRow() == kMenuKeywordMenuItem;
    picker.currentId = single ? static_cast<uint32_t>(crt::Wtoi(target)) : 0;
    picker.barCommandsWanted = true;
    if (picker.DoModal(hwnd()) != IDOK) return;
    const std::wstring id = std::to_wstring(picker.currentId);
    text = single ? picker.resultText : JoinedBehind(text, picker.resultText);
    target = single ? id : JoinedBehind(target, id);
}

std::wstring CDlgMenuCommand::PickPath(uint32_t kind, const std::wstring& start) {
    platform::Prompts& prompts = platform::Current().prompts;
    const std::wstring shown = expandMacros ? ExpandDirectoryMacros(start, app_.directories) : start;
    platform::FolderChoice choice = kind == kMenuArgumentDirectory
                                        ? prompts.BrowseForFolderName(app_.messages.Get(kMsgFolderBrowserTitle), shown)
                                        : prompts.ChooseFileToOpen(L"File open", L"All files(*.*)|*.*|", shown);
    if (!choice.confirmed || choice.path.empty()) return {};
    return expandMacros ? TextToMacroPath(choice.path, app_.directories) : choice.path;
}

// A result replaces the field; nothing chosen leaves it alone.
void CDlgMenuCommand::Pick(uint32_t kind, std::wstring& field) {
    if (!UpdateData(true)) return;
    std::wstring result;
    switch (kind) {
        case kMenuArgumentCommands:
            PickCommands();
            break;
        case kMenuArgumentDirectory:
        case kMenuArgumentFile:
            result = PickPath(kind, field);
            break;
        case kMenuArgumentPosition:
        case kMenuArgumentOnOff: {
            CDlgMacroHelperEx helper(app_);
            helper.mode = kind == kMenuArgumentPosition ? kMacroTabPositions : kMacroTabOnOff;
            helper.enabled[helper.mode] = true;
            if (helper.DoModal(hwnd()) == IDOK) result = helper.result;
            break;
        }
        default:
            break;
    }
    if (!result.empty()) field = result;
    UpdateData(false);
}

// The macro goes where the caret is, replacing the selection, so that Undo takes it back.
void CDlgMenuCommand::InsertMacro(int editId) {
    CDlgMacroHelperEx helper(app_);
    helper.mode = kMacroTabMacros;
    helper.enabled[kMacroTabPaths] = helper.enabled[kMacroTabMacros] = helper.enabled[kMacroTabEnvironment] = true;
    if (helper.DoModal(hwnd()) != IDOK || helper.result.empty()) return;
    SendDlgItemMessageW(hwnd(), editId, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(helper.result.c_str()));
}

bool CDlgMenuCommand::OnCommand(int id, int code) {
    if (id == IDC_MENU_COMMAND_KEYWORD) {
        if (code == CBN_SELCHANGE) PostMessageW(hwnd(), kKeywordChosen, 0, 0);
        if (code == CBN_EDITCHANGE) ShowKeyword();
        return code == CBN_SELCHANGE || code == CBN_EDITCHANGE;
    }
    if (code != BN_CLICKED) return false;
    const MenuKeywordRow& keyword = MenuKeywordTable[KeywordRow()];
    switch (id) {
        case IDC_MENU_COMMAND_PICK_TEXT:
            Pick(keyword.firstKind, text);
            return true;
        case IDC_MENU_COMMAND_PICK_TARGET:
            Pick(keyword.secondKind, target);
            return true;
        case IDC_MENU_COMMAND_MACRO_TEXT:
            InsertMacro(IDC_MENU_COMMAND_TEXT);
            return true;
        case IDC_MENU_COMMAND_MACRO_TARGET:
            InsertMacro(IDC_MENU_COMMAND_TARGET);
            return true;
        default:
            return false;
    }
}

void CDlgMenuCommand::OnOK() {
    if (!UpdateData(true)) return;
    const std::wstring missing = FinishMenuCommand(command, text, target);
    if (!missing.empty()) {
        platform::Current().prompts.ShowMessage(missing, platform::kStyleOk);
        return;
    }
    EndDialog(IDOK);
}
