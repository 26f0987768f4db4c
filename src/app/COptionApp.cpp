#include "app/COptionApp.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>

#include <vector>

#include "app/COptionDlg.h"
#include "app/CommandLine.h"
#include "app/DefinitionEditing.h"
#include "app/Startup.h"
#include "bindings/COptionKeySetting.h"
#include "bindings/KeyListWriter.h"
#include "definitions/CDlgDefCmdSet.h"
#include "definitions/CDlgExRunSet.h"
#include "definitions/CDlgMenuEdit.h"
#include "definitions/CDlgRunSet.h"
#include "platform/win32/Win32Platform.h"
#include "services/HostHandshake.h"

namespace {

// Libraries are looked for in the system directory only, where the system allows saying so.
void RestrictDllSearch() {
    wchar_t directory[MAX_PATH];
    UINT length = GetSystemDirectoryW(directory, MAX_PATH);
    if (length == 0 || length >= MAX_PATH - 1) return;
    std::wstring kernel = std::wstring(directory, length) + L"\\Kernel32.dll";
    HMODULE module = LoadLibraryW(kernel.c_str());
    if (!module) return;
    using SetDirectories = BOOL(WINAPI*)(DWORD);
    auto set =
        reinterpret_cast<SetDirectories>(reinterpret_cast<void*>(GetProcAddress(module, "SetDefaultDllDirectories")));
    if (set) set(LOAD_LIBRARY_SEARCH_SYSTEM32);
    FreeLibrary(module);
}

int ScreenLogPixelsY() {
    HDC screen = GetDC(nullptr);
    int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
    if (screen) ReleaseDC(nullptr, screen);
    return dpi;
}

std::vector<std::wstring> Arguments() {
    std::vector<std::wstring> arguments;
    for (int i = 1; i < __argc; ++i) arguments.emplace_back(__wargv[i]);
    return arguments;
}

}  // namespace

int COptionApp::InitInstance() {
    RestrictDllSearch();
    INITCOMMONCONTROLSEX controls = {8, 255};
    InitCommonControlsEx(&controls);
    platform::win32::Win32Platform system;
    HRESULT com = CoInitialize(nullptr);
    {
        AppServices app(ScreenLogPixelsY());
        app_ = &app;
        RunStartup(app, *this, Arguments());
        COptionKeySetting::ReleaseShared();
        app_ = nullptr;
    }
    if (SUCCEEDED(com)) CoUninitialize();
    return 0;
}

void COptionApp::OpenOptionDialog() {
    if (!app_) return;
    COptionDlg dialog(*app_);
    // In mode 3 the host's window is the dialog's parent; otherwise it has none.
    dialog.DoModal(reinterpret_cast<HWND>(HostParent(app_->host.windowMode)));
}

// The definition editors of the switches, each the program's one dialog. A switch whose editor is
// not there ends the run quietly.
void COptionApp::OpenEditor(int switchNumber, const std::wstring& file) {
    if (!app_) return;
    // In mode 3 the host's window owns the editor; the menu editor never has an owner.
    const HWND owner = reinterpret_cast<HWND>(HostParent(app_->host.windowMode));
    switch (switchNumber) {
        case kSwitchExRun: {
            CDlgExRunSet editor(*app_);
            editor.filePath = file;
            editor.DoModal(owner);
            break;
        }
        case kSwitchRun: {
            CDlgRunSet editor(*app_);
            editor.filePath = file;
            editor.DoModal(owner);
            break;
        }
        case kSwitchCommands: {
            CDlgDefCmdSet editor(*app_);
            editor.filePath = file;
            editor.DoModal(owner);
            break;
        }
        case kSwitchMenu: {
            CDlgMenuEdit editor(*app_);
            editor.filePath = file;
            editor.DoModal(nullptr);
            break;
        }
        default:
            break;
    }
}

void COptionApp::WriteKeyLists() {
    if (!app_) return;
    KeyListWriter writer(app_->directories.UserDirectory(), app_->messages, app_->commands, app_->resourceModule.get());
    writer.Run();
}

// The user's editor script opens the file.
void COptionApp::RunEditorScript(const std::wstring& file) {
    if (app_) ::RunEditorScript(*app_, file);
}
