// The floor of the dialog benchmark: a program that shows one empty modal dialog, built from a
// template in memory, until it is cancelled. Built a second time with what the option dialog cannot
// do without (the common controls, version 6 by the program's manifest, a tree view in the dialog,
// and the dialog font of its templates, which here is a Japanese one), it shows what those cost by
// themselves.
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

// DLGTEMPLATE is followed by the menu, the class and the title, each a WORD array, then with
// DS_SETFONT the point size and the face; no controls.
struct EmptyTemplate {
    DLGTEMPLATE header;
    WORD menu;
    WORD windowClass;
    wchar_t title[6];
#ifdef WITH_COMMON_CONTROLS
    WORD pointSize;
    wchar_t face[13];
#endif
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
#ifdef WITH_COMMON_CONTROLS
    dialog.header.style |= DS_SETFONT;
    dialog.pointSize = 9;
    const wchar_t face[] = L"MS Shell Dlg";
    for (int i = 0; i < 13; ++i) dialog.face[i] = face[i];
#endif
    return static_cast<int>(DialogBoxIndirectParamW(instance, &dialog.header, nullptr, EmptyDialogProc, 0));
}
