#include "platform/win32/Win32Prompts.h"

#include <windows.h>
#include <shlobj.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shlwapi.h>

#include <cstring>
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

// The common dialogs' library, loaded when a chooser first opens rather than at every start: loading
// it and what it needs in turn costs the start-up more than anything else the program imports. Once
// loaded it stays for the life of the process, as an imported library would.
struct CommonDialogs {
    decltype(&GetOpenFileNameW) getOpenFileName = nullptr;
    decltype(&CommDlgExtendedError) extendedError = nullptr;
    decltype(&ChooseColorW) chooseColor = nullptr;
    decltype(&ChooseFontW) chooseFont = nullptr;
};

template <typename Function>
void Find(HMODULE module, const char* name, Function& function) {
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// Null when the library or one of its functions is missing: the chooser then does not open.
const CommonDialogs* LoadCommonDialogs() {
    static const CommonDialogs loaded = [] {
        CommonDialogs functions;
        HMODULE module = LoadLibraryW(L"comdlg32.dll");
        if (!module) return functions;
        Find(module, "GetOpenFileNameW", functions.getOpenFileName);
        Find(module, "CommDlgExtendedError", functions.extendedError);
        Find(module, "ChooseColorW", functions.chooseColor);
        Find(module, "ChooseFontW", functions.chooseFont);
        return functions;
    }();
    const bool complete = loaded.getOpenFileName && loaded.extendedError && loaded.chooseColor && loaded.chooseFont;
    return complete ? &loaded : nullptr;
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
    const CommonDialogs* dialogs = LoadCommonDialogs();
    if (!dialogs) return {};
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
        if (dialogs->getOpenFileName(&box)) return {true, path};
        // Only a start text the box cannot take is worth a second opening.
        if (attempt > 0 || dialogs->extendedError() != FNERR_INVALIDFILENAME) break;
    }
    return {};
}

// Our font description is the system's field for field, the face name in 16-bit units as well.
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

std::optional<uint32_t> Win32Prompts::ChooseColour(uint32_t initial) {
    const CommonDialogs* dialogs = LoadCommonDialogs();
    if (!dialogs) return std::nullopt;
    // The sixteen custom colours live as long as the process, as the user expects of the chooser.
    static COLORREF custom[16] = {};
    CHOOSECOLORW box{};
    box.lStructSize = sizeof(box);
    box.hwndOwner = GetActiveWindow();
    box.rgbResult = initial & 0xFFFFFF;
    box.lpCustColors = custom;
    box.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    if (!dialogs->chooseColor(&box)) return std::nullopt;
    return static_cast<uint32_t>(box.rgbResult);
}

std::optional<LogFont> Win32Prompts::ChooseFontFace(const LogFont& initial, unsigned flags) {
    static_assert(sizeof(LogFont) == sizeof(LOGFONTW));
    const CommonDialogs* dialogs = LoadCommonDialogs();
    if (!dialogs) return std::nullopt;
    LOGFONTW font{};
    std::memcpy(&font, &initial, sizeof(font));
    CHOOSEFONTW box{};
    box.lStructSize = sizeof(box);
    box.hwndOwner = GetActiveWindow();
    box.lpLogFont = &font;
    box.Flags = flags | CF_INITTOLOGFONTSTRUCT;
    if (!dialogs->chooseFont(&box)) return std::nullopt;
    LogFont chosen;
    std::memcpy(static_cast<void*>(&chosen), &font, sizeof(chosen));
    return chosen;
}

}  // namespace platform::win32
