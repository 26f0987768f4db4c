// The floor of the dialog benchmark: a program that shows one empty modal dialog, built from a
// template in memory, until it is cancelled. Built a second time with the common controls (version 6
// by the program's manifest, all classes, a tree view in the dialog), it shows what the library the
// option dialog cannot do without costs by itself.
#include <windows.h>
#ifdef WITH_COMMON_CONTROLS
#include <commctrl.h>
#endif

#include <cstdint>

namespace {

INT_PTR CALLBACK EmptyDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) {
#ifdef WITH_COMMON_CONTROLS
        CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE | WS_BORDER | TVS_HASLINES, 10, 10, 150, 400,
                        dialog, nullptr, nullptr, nullptr);
#endif
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDCANCEL || LOWORD(wParam) == IDOK)) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

// DLGTEMPLATE is followed by the menu, the class and the title, each a WORD array; no controls.
struct EmptyTemplate {
    DLGTEMPLATE header;
    WORD menu;
    WORD windowClass;
    wchar_t title[6];
};

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
#ifdef WITH_COMMON_CONTROLS
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
#endif
    alignas(DWORD) EmptyTemplate dialog{};
    dialog.header.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME | DS_CENTER;
    dialog.header.cx = 447;
    dialog.header.cy = 303;
    const wchar_t title[] = L"Empty";
    for (int i = 0; i < 6; ++i) dialog.title[i] = title[i];
    return static_cast<int>(DialogBoxIndirectParamW(instance, &dialog.header, nullptr, EmptyDialogProc, 0));
}
