/* A small preview plug-in: shows the beginning of a text file in a read-only edit control.
   Built twice: complete as TextPeek.dll, and as HalfPeek.dll without ResizeWindow, which therefore
   is no plug-in at all. */
#include <windows.h>

#define PEEK_EXPORT __declspec(dllexport)

/* What this plug-in offers to show when the user gives no extensions of its own. */
static const wchar_t kDefaultFilter[] = L"txt,log,ini,csv";
/* The most of a file shown. */
#define PEEK_BYTES 65536

static HINSTANCE g_instance;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    (void)reserved;
    if (reason == DLL_PROCESS_ATTACH) g_instance = instance;
    return TRUE;
}

/* The control is a child of the host's preview pane, hidden until shown. */
PEEK_EXPORT void* CreateCtrl(HWND parent) {
    return CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"",
                           WS_CHILD | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL, 0, 0, 100, 100, parent,
                           NULL, g_instance, NULL);
}

PEEK_EXPORT void DestroyCtrl(void* control) {
    if (control) DestroyWindow((HWND)control);
}

/* UTF-16 with its mark is shown as it is; anything else as the ANSI code page's text. */
PEEK_EXPORT BOOL LoadFile(void* control, const wchar_t* path) {
    HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, NULL, OPEN_EXISTING, 0, NULL);
    if (file == INVALID_HANDLE_VALUE) return FALSE;
    static char bytes[PEEK_BYTES + 2];
    DWORD read = 0;
    BOOL ok = ReadFile(file, bytes, PEEK_BYTES, &read, NULL);
    CloseHandle(file);
    if (!ok) return FALSE;
    bytes[read] = bytes[read + 1] = 0;
    if (read >= 2 && (unsigned char)bytes[0] == 0xFF && (unsigned char)bytes[1] == 0xFE) {
        SetWindowTextW((HWND)control, (const wchar_t*)(bytes + 2));
        return TRUE;
    }
    static wchar_t text[PEEK_BYTES + 1];
    int units = MultiByteToWideChar(CP_ACP, 0, bytes, (int)read, text, PEEK_BYTES);
    text[units] = 0;
    SetWindowTextW((HWND)control, text);
    return TRUE;
}

/* No commands: every one is declined. */
PEEK_EXPORT int SendCommand(void* control, int command) {
    (void)control;
    (void)command;
    return 0;
}

PEEK_EXPORT void ShowCtrl(void* control, BOOL show) {
    if (control) ShowWindow((HWND)control, show ? SW_SHOWNA : SW_HIDE);
}

#ifndef PEEK_WITHOUT_RESIZE
PEEK_EXPORT void ResizeWindow(void* control, const RECT* area) {
    if (control && area)
        MoveWindow((HWND)control, area->left, area->top, area->right - area->left, area->bottom - area->top, TRUE);
}
#endif

/* The buffer comes without a length; the host gives room for at least 520 characters. */
PEEK_EXPORT void GetDefaultFilter(wchar_t* buffer) {
    if (buffer) lstrcpyW(buffer, kDefaultFilter);
}
