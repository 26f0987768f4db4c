// A window that logs what it is sent: FakeHost.exe stands in for the host's main window (of the
// host's class), DropTarget.exe (class "OptionTests.DropTarget") is a program files are dropped on.
//   FakeHost.exe --log <file> [--title <text>] [--hidden]
//   DropTarget.exe [--log <file>] [anything]     the log defaults to the variable DROPTARGET_LOG
// One UTF-8 line per event, written through at once so that a test reads it as soon as its
// SendMessageW has returned: "cwd <directory>", "args <command line tail>", "ready",
// "command <wParam> [<lParam> unless 0]", "copydata <dwData> <text up to its zero>",
// "message <msg> <wParam> <lParam>" (WM_APP and above), "dropfiles <path>|<path>", "activate".
// It ends on WM_CLOSE with exit code 0, or by itself after two minutes.
#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <string>

namespace {

#ifdef OPTION_TESTS_DROP_TARGET
constexpr wchar_t kClassName[] = L"OptionTests.DropTarget";
#else
constexpr wchar_t kClassName[] = L"{0F04AF43-7B85-46A5-A0A7-6D323A84AD7C}";
#endif
constexpr UINT kLifeMs = 120000;

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

void LogCopyData(const COPYDATASTRUCT& data) {
    const auto* text = static_cast<const wchar_t*>(data.lpData);
    size_t capacity = text ? data.cbData / sizeof(wchar_t) : 0;
    size_t length = 0;
    while (length < capacity && text[length] != L'\0') ++length;
    WriteLine(L"copydata " + std::to_wstring(data.dwData) + L" " + std::wstring(text, length));
}

void LogDrop(HDROP drop) {
    std::wstring line = L"dropfiles ";
    UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
        path.resize(DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size())));
        line += (i > 0 ? L"|" : L"") + path;
    }
    DragFinish(drop);
    WriteLine(line);
}

LRESULT CALLBACK WindowProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    switch (msg) {
        case WM_TIMER:
        case WM_CLOSE:
            // Destroying a shown window costs Wine seconds on a display with no window manager; nothing
            // is left to tidy (every log line is already written through), so end at once.
            CloseHandle(logFile);
            TerminateProcess(GetCurrentProcess(), 0);
            return 0;
        case WM_COMMAND:
            WriteLine(L"command " + std::to_wstring(wp) +
                      (lp ? L" " + std::to_wstring(static_cast<long long>(lp)) : std::wstring()));
            return 0;
        case WM_COPYDATA:
            LogCopyData(*reinterpret_cast<const COPYDATASTRUCT*>(lp));
            return TRUE;
        case WM_DROPFILES:
            LogDrop(reinterpret_cast<HDROP>(wp));
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wp) != WA_INACTIVE) WriteLine(L"activate");
            break;
        default:
            if (msg >= WM_APP && msg <= 0xBFFF) {
                WriteLine(L"message " + std::to_wstring(msg) + L" " + std::to_wstring(wp) + L" " +
                          std::to_wstring(static_cast<long long>(lp)));
                return 0;
            }
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

// clang-format off
struct Arguments { std::wstring log; std::wstring title = L"FakeHost"; bool hidden = false; };
// clang-format on

// The options this program knows; anything else on the command line is only logged.
Arguments ParseArguments() {
    Arguments args;
    int argc = 0;
    LPWSTR* argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    for (int i = 1; argv && i < argc; ++i) {
        const std::wstring name = argv[i];
        if (name == L"--log" && i + 1 < argc) args.log = argv[++i];
        if (name == L"--title" && i + 1 < argc) args.title = argv[++i];
        if (name == L"--hidden") args.hidden = true;
    }
    if (argv) LocalFree(argv);
    wchar_t value[MAX_PATH * 4];
    DWORD length = GetEnvironmentVariableW(L"DROPTARGET_LOG", value, MAX_PATH * 4);
    if (args.log.empty() && length > 0 && length < MAX_PATH * 4) args.log.assign(value, length);
    return args;
}

// The command line less the program's name, as the program received it.
std::wstring CommandTail() {
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
    const Arguments args = ParseArguments();
    if (args.log.empty()) return 2;
    // Other processes read the log while it is written, hence the sharing flags.
    logFile = CreateFileW(args.log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (logFile == INVALID_HANDLE_VALUE) return 3;

    wchar_t directory[MAX_PATH];
    DWORD length = GetCurrentDirectoryW(MAX_PATH, directory);
    WriteLine(L"cwd " + std::wstring(directory, length < MAX_PATH ? length : 0));
    WriteLine(L"args " + CommandTail());

    WNDCLASSEXW wc{};
    wc.cbSize = sizeof(wc);
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = kClassName;
    if (!RegisterClassExW(&wc)) return 4;
    HWND hwnd = CreateWindowExW(0, kClassName, args.title.c_str(), WS_OVERLAPPEDWINDOW, 100, 100, 640, 480, nullptr,
                                nullptr, instance, nullptr);
    if (!hwnd) return 5;
    DragAcceptFiles(hwnd, TRUE);
    if (!args.hidden) {
        ShowWindow(hwnd, show == SW_HIDE ? SW_SHOWNORMAL : show);
        UpdateWindow(hwnd);
    }
    SetTimer(hwnd, 1, kLifeMs, nullptr);
    WriteLine(L"ready");

    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return 0;
}
