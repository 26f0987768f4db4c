#include "platform/win32/Win32Prompts.h"

#include <windows.h>
#include <shlobj.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shlwapi.h>

#include <vector>

#include "platform/win32/Win32Environment.h"

namespace platform::win32 {

namespace {

// The browser takes a path of fewer units than this.
constexpr DWORD kBrowsePathChars = 520;

// The framework's message box picks an icon when the caller gives none: a warning for OK and OK/Cancel,
// a question mark for Yes/No and Yes/No/Cancel.
UINT WithFrameworkIcon(UINT style) {
    if (style & MB_ICONMASK) return style;
    switch (style & MB_TYPEMASK) {
        case MB_OK:
        case MB_OKCANCEL:
            return style | MB_ICONEXCLAMATION;
        case MB_YESNO:
        case MB_YESNOCANCEL:
            return style | MB_ICONQUESTION;
        default:
            return style;
    }
}

// Selects the start folder once the browser is up.
int CALLBACK SelectStart(HWND window, UINT message, LPARAM, LPARAM start) {
    if (message == BFFM_INITIALIZED && start) SendMessageW(window, BFFM_SETSELECTIONW, TRUE, start);
    return 0;
}

// The shell's folder browser owned by the active window, or the desktop; null when cancelled.
PIDLIST_ABSOLUTE Browse(const std::wstring& title, const std::wstring& start) {
    HWND owner = GetActiveWindow();
    wchar_t displayName[MAX_PATH] = {};
    BROWSEINFOW info = {};
    info.hwndOwner = owner ? owner : GetDesktopWindow();
    info.pszDisplayName = displayName;
    info.lpszTitle = title.c_str();
    info.lpfn = SelectStart;
    info.lParam = start.empty() ? 0 : reinterpret_cast<LPARAM>(start.c_str());
    return SHBrowseForFolderW(&info);
}

}  // namespace

int Win32Prompts::ShowMessage(const std::wstring& text, unsigned style) {
    // Like the framework's message box: captioned with the program's name, with its icon.
    return Ask(text, ProgramName(), WithFrameworkIcon(style));
}

int Win32Prompts::Ask(const std::wstring& text, const std::wstring& caption, unsigned style) {
    return MessageBoxW(GetActiveWindow(), text.c_str(), caption.c_str(), style);
}

int Win32Prompts::ShowOwnedMessage(uintptr_t owner, const std::wstring& text, const std::wstring& caption,
                                   unsigned flags) {
    return MessageBoxW(reinterpret_cast<HWND>(owner), text.c_str(), caption.c_str(), flags);
}

FolderChoice Win32Prompts::BrowseForFolder(const std::wstring& title, const std::wstring& start) {
    PIDLIST_ABSOLUTE chosen = Browse(title, start);
    if (!chosen) return {};
    FolderChoice choice{true, L""};
    wchar_t path[kBrowsePathChars] = {};
    if (SHGetPathFromIDListEx(chosen, path, kBrowsePathChars, GPFIDL_DEFAULT)) choice.path = path;
    CoTaskMemFree(chosen);
    return choice;
}

FolderChoice Win32Prompts::BrowseForFolderName(const std::wstring& title, const std::wstring& start) {
    PIDLIST_ABSOLUTE chosen = Browse(title, start);
    if (!chosen) return {};
    FolderChoice choice{true, L""};
    IShellFolder* desktop = nullptr;
    STRRET name = {};
    if (SUCCEEDED(SHGetDesktopFolder(&desktop)) &&
        SUCCEEDED(desktop->GetDisplayNameOf(chosen, SHGDN_FORPARSING, &name))) {
        wchar_t* text = nullptr;
        if (SUCCEEDED(StrRetToStrW(&name, chosen, &text))) {
            choice.path = text;
            CoTaskMemFree(text);
        }
    }
    if (desktop) desktop->Release();
    wchar_t path[MAX_PATH] = {};
    if (choice.path.empty() && SHGetPathFromIDListW(chosen, path)) choice.path = path;
    CoTaskMemFree(chosen);
    return choice;
}

FolderChoice Win32Prompts::ChooseFileToOpen(const std::wstring& title, const std::wstring& filter,
                                            const std::wstring& start) {
    std::wstring filters = filter;
    for (wchar_t& c : filters) {
        if (c == L'|') c = L'\0';
    }
    for (int attempt = 0; attempt < 2; ++attempt) {
        wchar_t path[MAX_PATH] = {};
        if (attempt == 0) lstrcpynW(path, start.c_str(), MAX_PATH);
        OPENFILENAMEW box = {};
        box.lStructSize = sizeof(box);
        box.hwndOwner = GetActiveWindow();
        box.lpstrFilter = filters.c_str();
        box.lpstrFile = path;
        box.nMaxFile = MAX_PATH;
        box.lpstrTitle = title.empty() ? nullptr : title.c_str();  // the system's own "Open"
        box.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
        if (GetOpenFileNameW(&box)) return {true, path};
        // Only a start text the box cannot take is worth a second opening.
        if (attempt > 0 || CommDlgExtendedError() != FNERR_INVALIDFILENAME) break;
    }
    return {};
}

int Win32Prompts::ChooseOne(const ChoiceRequest& request) {
    constexpr int kFirstChoiceId = 201;
    std::vector<TASKDIALOG_BUTTON> buttons;
    for (size_t i = 0; i < request.choices.size(); ++i) {
        buttons.push_back({kFirstChoiceId + static_cast<int>(i), request.choices[i].c_str()});
    }
    const std::wstring title = ProgramName();
    TASKDIALOGCONFIG config{};
    config.cbSize = sizeof(config);
    config.hwndParent = GetActiveWindow();
    config.dwFlags = TDF_ENABLE_HYPERLINKS | TDF_USE_COMMAND_LINKS;
    config.dwCommonButtons = TDCBF_CANCEL_BUTTON;
    config.pszWindowTitle = title.c_str();
    config.pszMainInstruction = request.instruction.c_str();
    config.pszContent = request.content.c_str();
    config.cButtons = static_cast<UINT>(buttons.size());
    config.pButtons = buttons.data();
    config.nDefaultButton = 0;
    int pressed = IDCANCEL;
    if (FAILED(TaskDialogIndirect(&config, &pressed, nullptr, nullptr))) return -1;
    if (pressed < kFirstChoiceId || pressed >= kFirstChoiceId + static_cast<int>(buttons.size())) return -1;
    return pressed - kFirstChoiceId;
}

}  // namespace platform::win32
