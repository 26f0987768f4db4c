// A program that files are dropped on, for tests of starting programs.
//
//   DropTarget.exe [--log <file>]        the log defaults to the variable DROPTARGET_LOG
//
// Shows one window that accepts drops and appends UTF-8 lines to the log, written through at once:
//   cwd <directory>              its current directory at start
//   args <text>                  its command line behind the program name
//   ready                        the window is shown
//   dropfiles <path>|<path>      WM_DROPFILES, the paths DragQueryFileW gives
//   activate                     the window became active
// It ends on WM_CLOSE, or by itself after a minute so that a failed test leaves nothing behind.
#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <string>

namespace {

constexpr wchar_t kClassName[] = L"OptionTests.DropTarget";
constexpr UINT_PTR kLifeTimer = 1;
constexpr UINT kLifeMs = 60000;

HANDLE logFile = INVALID_HANDLE_VALUE;

void WriteLine(const std::wstring& line) {
    std::wstring text = line + L"\n";
    int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
    std::string bytes(size, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), size, nullptr, nullptr);
    DWORD written = 0;
    WriteFile(logFile, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

void LogDrop(HDROP drop) {
    std::wstring line = L"dropfiles ";
    UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
        path.resize(DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size())));
        if (i > 0) line += L"|";
        line += path;
    }
    DragFinish(drop);
    WriteLine(line);
}

LRESULT CALLBACK WindowProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    switch (msg) {
        case WM_DROPFILES:
            LogDrop(reinterpret_cast<HDROP>(wp));
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wp) != WA_INACTIVE) WriteLine(L"activate");
            break;
        case WM_TIMER:
        case WM_CLOSE:
            // Nothing is left to tidy: every line is written through.
            CloseHandle(logFile);
            TerminateProcess(GetCurrentProcess(), 0);
            return 0;
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

std::wstring LogPath() {
    int argc = 0;
    LPWSTR* argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    std::wstring path;
    for (int i = 1; argv && i + 1 < argc; ++i)
        if (std::wstring(argv[i]) == L"--log") path = argv[i + 1];
    if (argv) LocalFree(argv);
    if (!path.empty()) return path;
    wchar_t value[MAX_PATH * 4];
    DWORD length = GetEnvironmentVariableW(L"DROPTARGET_LOG", value, MAX_PATH * 4);
    return length > 0 && length < MAX_PATH * 4 ? std::wstring(value, length) : std::wstring();
}

// The command line less the program's name, as the program received it.
std::wstring Arguments() {
    const wchar_t* line = GetCommandLineW();
    bool quoted = false;
    while (*line && (quoted || (*line != L' ' && *line != L'\t'))) {
        if (*line == L'"') quoted = !quoted;
        ++line;
    }
    while (*line == L' ' || *line == L'\t') ++line;
    return line;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    std::wstring log = LogPath();
    if (log.empty()) return 2;
    logFile = CreateFileW(log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (logFile == INVALID_HANDLE_VALUE) return 3;

    wchar_t directory[MAX_PATH];
    DWORD length = GetCurrentDirectoryW(MAX_PATH, directory);
    WriteLine(L"cwd " + std::wstring(directory, length < MAX_PATH ? length : 0));
    WriteLine(L"args " + Arguments());

    WNDCLASSEXW wc{};
    wc.cbSize = sizeof(wc);
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = instance;
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = kClassName;
    if (!RegisterClassExW(&wc)) return 4;
    HWND hwnd = CreateWindowExW(0, kClassName, L"DropTarget", WS_OVERLAPPEDWINDOW, 200, 200, 320, 240, nullptr, nullptr,
                                instance, nullptr);
    if (!hwnd) return 5;
    DragAcceptFiles(hwnd, TRUE);
    ShowWindow(hwnd, show == SW_HIDE ? SW_SHOWNORMAL : show);
    UpdateWindow(hwnd);
    SetTimer(hwnd, kLifeTimer, kLifeMs, nullptr);
    WriteLine(L"ready");

    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return 0;
}
