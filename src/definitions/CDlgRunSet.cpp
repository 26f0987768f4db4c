#include "definitions/CDlgRunSet.h"

#include "app/AppServices.h"
#include "definitions/CDlgMacroHelperEx.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "services/Format.h"
#include "services/MessageIds.h"
#include "settings/PathRoots.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr const wchar_t* kHelpPage = L"7.Option/4.Interface/sub/03.html";
// The sixth of the confirmations: saving a run definition.
constexpr uint16_t kConfirmSave = kFirstConfirmation + 2 * 5;
constexpr int kCommandLineLimit = 250;
constexpr int32_t kLastOpenMode = 4;

}  // namespace

namespace runset {

void InsertMacro(AppServices& app, HWND dialog, int editId, int32_t tab, std::initializer_list<int32_t> tabs) {
    CDlgMacroHelperEx helper(app);
    helper.mode = tab;
    for (int32_t allowed : tabs) helper.enabled[static_cast<size_t>(allowed)] = true;
    if (helper.DoModal(dialog) != IDOK || helper.result.empty()) return;
    SendDlgItemMessageW(dialog, editId, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(helper.result.c_str()));
}

void ReplaceWithMacroPath(AppServices& app, HWND dialog, int editId) {
    const std::wstring text = TextToMacroPath(ui::ControlText(GetDlgItem(dialog, editId)), app.directories);
    SetDlgItemTextW(dialog, editId, text.c_str());
}

bool KeepEditingWithout(AppServices& app, const wchar_t* word) {
    const std::wstring question = crt::Format(app.messages.Get(kMsgNoProgramQuestion).c_str(), word);
    return platform::Current().prompts.ShowMessage(question, platform::kStyleYesNo) != platform::kAnswerNo;
}

bool ConfirmAndSave(AppServices& app, uint16_t confirmation, const std::wstring& path,
                    const std::function<bool()>& write) {
    if (app.messages.Confirm(app.store.Message, confirmation) == platform::kAnswerNo) return false;
    if (write()) return true;
    TellCannotOpen(path);
    return false;
}

void TellCannotOpen(const std::wstring& path) {
    platform::Current().prompts.ShowMessage(L"Cannot open " + path, platform::kStyleOk);
}

namespace {

std::optional<std::wstring> Chosen(const platform::FolderChoice& choice) {
    if (!choice.confirmed || choice.path.empty()) return std::nullopt;
    return choice.path;
}

}  // namespace

ui::BrowseEdit::Browse FolderChooser(AppServices& app) {
    return [&app](const std::wstring& current) {
        return Chosen(platform::Current().prompts.BrowseForFolder(app.messages.Get(kMsgFolderBrowserTitle), current));
    };
}

ui::BrowseEdit::Browse FileChooser() {
    return [](const std::wstring& current) {
        return Chosen(platform::Current().prompts.ChooseFileToOpen(L"File open", L"All files(*.*)|*.*|", current));
    };
}

}  // namespace runset

CDlgRunSet::CDlgRunSet(AppServices& app) : CDlgDefinitionEditor(IDD_RUN_SET, app, kHelpPage) {}

bool CDlgRunSet::OnInitDialog() {
    definition_ = {};
    if (!ReadRunDefinition(filePath, definition_)) runset::TellCannotOpen(filePath);
    const bool focusFirst = CDlgDefinitionEditor::OnInitDialog();
    SetDlgItemTextW(hwnd(), IDC_RUN_SET_PATH, filePath.c_str());
    bootDir_.Attach(hwnd(), IDC_RUN_SET_BOOT_DIR, runset::FolderChooser(app_));
    program_.Attach(hwnd(), IDC_RUN_SET_RUN, runset::FileChooser());
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    if (definition_.run.empty() && !runset::KeepEditingWithout(app_, L"Run")) EndDialog(IDCANCEL);
    return focusFirst;
}

void CDlgRunSet::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_RUN_SET_COMMAND_LINE, definition_.commandLine);
    DDV_MaxChars(exchange, definition_.commandLine, kCommandLineLimit);
    DDX_CBIndex(exchange, IDC_RUN_SET_OPEN_MODE, definition_.openMode);
    DDV_MinMaxInt(exchange, definition_.openMode, 0, kLastOpenMode);
    DDX_Check(exchange, IDC_RUN_SET_MULTI, definition_.multiCommandMode);
    DDX_Check(exchange, IDC_RUN_SET_SHIFT_SILENT, definition_.shiftSilentMode);
    DDX_Text(exchange, IDC_RUN_SET_BOOT_DIR, definition_.bootDir);
    DDX_CBIndex(exchange, IDC_RUN_SET_BOOT_MODE, definition_.bootMode);
    DDX_Text(exchange, IDC_RUN_SET_RUN, definition_.run);
}

bool CDlgRunSet::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_RUN_SET_MACRO:
            runset::InsertMacro(app_, hwnd(), IDC_RUN_SET_COMMAND_LINE, 0, {0, 1, 2});
            return true;
        case IDC_RUN_SET_COMMAND_LINE_TO_MACRO:
            runset::ReplaceWithMacroPath(app_, hwnd(), IDC_RUN_SET_COMMAND_LINE);
            return true;
        case IDC_RUN_SET_BOOT_DIR_TO_MACRO:
            runset::ReplaceWithMacroPath(app_, hwnd(), IDC_RUN_SET_BOOT_DIR);
            return true;
        case IDC_RUN_SET_RUN_TO_MACRO:
            runset::ReplaceWithMacroPath(app_, hwnd(), IDC_RUN_SET_RUN);
            return true;
        default:
            return false;
    }
}

void CDlgRunSet::OnOK() {
    if (!UpdateData(true)) return;
    if (runset::ConfirmAndSave(app_, kConfirmSave, filePath, [&] { return WriteRunDefinition(filePath, definition_); }))
        EndDialog(IDOK);
}
