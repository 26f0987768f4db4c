// A stand-in for the file manager's main window, for end-to-end tests.
//
//   FakeHost.exe --log <file> [--title <text>] [--hidden]
//
// Owns one top-level window of the host's window class and appends one UTF-8 line per message of
// interest to the log, written through at once so that a test reads it as soon as the sender's
// SendMessageW has returned:
//   ready                      the window exists
//   command <wParam> [<lParam>]   WM_COMMAND; lParam only when it is not 0
//   copydata <dwData> <text>   WM_COPYDATA, text up to its terminating zero (the sender's size may be
//                              longer than the text); characters below U+0020 appear as \u00XX
//   message <msg> <wParam> <lParam>   a private message (WM_APP and above)
//   activate                   the window became active
// It ends on WM_CLOSE, with exit code 0.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

constexpr wchar_t kHostClass[] = L"{0F04AF43-7B85-46A5-A0A7-6D323A84AD7C}";

HANDLE logFile = INVALID_HANDLE_VALUE;

std::string ToUtf8(const std::wstring& text) {
    if (text.empty()) return {};
    int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
    std::string out(size, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), size, nullptr, nullptr);
    return out;
}

// One line per message keeps the log line-oriented whatever the sender's text holds.
std::wstring EscapeControls(const wchar_t* text, size_t length) {
    std::wstring out;
    for (size_t i = 0; i < length; ++i) {
        if (text[i] < 0x20) {
            wchar_t escaped[8];
            swprintf(escaped, 8, L"\\u%04X", static_cast<unsigned>(text[i]));
            out += escaped;
        } else {
            out += text[i];
        }
    }
    return out;
}

void WriteLine(const std::wstring& line) {
    std::string bytes = ToUtf8(line + L"\n");
    DWORD written = 0;
    WriteFile(logFile, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

void LogCopyData(const COPYDATASTRUCT& data) {
    const auto* text = static_cast<const wchar_t*>(data.lpData);
    size_t capacity = text ? data.cbData / sizeof(wchar_t) : 0;
    size_t length = 0;
    while (length < capacity && text[length] != L'\0') ++length;
    WriteLine(L"copydata " + std::to_wstring(data.dwData) + L" " + EscapeControls(text, length));
}

LRESULT CALLBACK WindowProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_CLOSE) {
        // Destroying a shown window costs Wine seconds on a display with no window manager; nothing
        // is left to tidy (every log line is already written through), so end at once.
        CloseHandle(logFile);
        TerminateProcess(GetCurrentProcess(), 0);
    }
    switch (msg) {
        case WM_COMMAND:
            WriteLine(L"command " + std::to_wstring(wp) +
                      (lp ? L" " + std::to_wstring(static_cast<long long>(lp)) : std::wstring()));
            return 0;
        case WM_COPYDATA:
            LogCopyData(*reinterpret_cast<const COPYDATASTRUCT*>(lp));
            return TRUE;
        case WM_ACTIVATE:
            if (LOWORD(wp) != WA_INACTIVE) WriteLine(L"activate");
            break;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            if (msg >= WM_APP && msg <= 0xBFFF) {
                WriteLine(L"message " + std::to_wstring(msg) + L" " + std::to_wstring(wp) + L" " +
                          std::to_wstring(static_cast<long long>(lp)));
                return 0;
            }
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

struct Arguments {
    std::wstring log;
    std::wstring title = L"FakeHost";
    bool hidden = false;
};

bool ParseArguments(Arguments& args) {
    int argc = 0;
    LPWSTR* argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    if (!argv) return false;
    for (int i = 1; i < argc; ++i) {
        std::wstring name = argv[i];
        bool hasValue = i + 1 < argc;
        if (name == L"--log" && hasValue) {
            args.log = argv[++i];
        } else if (name == L"--title" && hasValue) {
            args.title = argv[++i];
        } else if (name == L"--hidden") {
            args.hidden = true;
        } else {
            LocalFree(argv);
            return false;
        }
    }
    LocalFree(argv);
    return !args.log.empty();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    Arguments args;
    if (!ParseArguments(args)) return 2;

    // Several hosts may share nothing but may read each other's logs, hence the sharing flags.
    logFile = CreateFileW(args.log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (logFile == INVALID_HANDLE_VALUE) return 3;

    WNDCLASSEXW wc{};
    wc.cbSize = sizeof(wc);
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = kHostClass;
    if (!RegisterClassExW(&wc)) return 4;

    HWND hwnd = CreateWindowExW(0, kHostClass, args.title.c_str(), WS_OVERLAPPEDWINDOW, 100, 100, 640, 480, nullptr,
                                nullptr, instance, nullptr);
    if (!hwnd) return 5;
    if (!args.hidden) {
        ShowWindow(hwnd, SW_SHOWNORMAL);
        UpdateWindow(hwnd);
    }
    WriteLine(L"ready");

    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    CloseHandle(logFile);
    return 0;
}
