// A script run on the real windows and clock: the trace window found by its title hears each script
// and where the parent goes on, and date macros come out as the C runtime writes the local time.
#include <gtest/gtest.h>
#include <windows.h>

#include <ctime>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "platform/win32/Win32Environment.h"
#include "platform/win32/Win32HostWindows.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#include "unit/Utf16.h"

namespace {

constexpr const wchar_t* kTraceClass = L"OptionTestsScriptTrace";

struct Report {
    ULONG_PTR code;
    DWORD bytes;
    std::wstring text;
    bool operator==(const Report&) const = default;
};
std::vector<Report> reports;

void PrintTo(const Report& report, std::ostream* os) {
    *os << report.code << " " << report.bytes << " " << testing::PrintToString(report.text);
}

LRESULT CALLBACK TraceProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_COPYDATA) {
        const auto& copy = *reinterpret_cast<const COPYDATASTRUCT*>(lp);
        reports.push_back({copy.dwData, copy.cbData, static_cast<const wchar_t*>(copy.lpData)});
        return TRUE;
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

// Real windows and clock; files, registry and message boxes fake.
class ScriptOnRealWindows : public testing::Test {
protected:
    void SetUp() override {
        WNDCLASSEXW wc{};
        wc.cbSize = sizeof(wc);
        wc.lpfnWndProc = TraceProc;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = kTraceClass;
        RegisterClassExW(&wc);
        reports.clear();
        fake_.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
        fake_.files().AddDirectory(L"C:\\Qor\\command\\Option");
    }
    void TearDown() override {
        if (trace_) DestroyWindow(trace_);
        UnregisterClassW(kTraceClass, GetModuleHandleW(nullptr));
    }

    void OpenTraceWindow() {
        trace_ = CreateWindowExW(0, kTraceClass, L"Script trace Qor", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
        ASSERT_TRUE(trace_);
    }

    std::wstring AddScript(const std::wstring& path, const std::wstring& text) {
        fake_.files().AddFile(path, Utf16Bytes(text, true));
        return path;
    }

    int32_t Run(const std::wstring& path) {
        return runner_.Run(path, L"", L"", selection_, static_cast<uint32_t>(-1), 1, 0, 0, 1, nullptr, nullptr);
    }

    std::vector<std::wstring> Messages() {
        std::vector<std::wstring> texts;
        for (const auto& shown : fake_.prompts().shown()) texts.push_back(shown.text);
        return texts;
    }

    platform::fake::FakePlatform fake_;
    platform::win32::Win32HostWindows windows_;
    platform::win32::Win32Environment environment_;
    platform::Platform platform_{fake_.registry(), fake_.files(), environment_,         fake_.prompts(),
                                 fake_.system(),   windows_,      fake_.sharedMemory(), fake_.processes()};
    platform::Installed installed_{platform_};
    UserDirectories directories_;
    MessageCatalog messages_;
    ScriptRunner runner_{directories_, messages_};
    SelectionList selection_{L"C:\\one.txt"};
    HWND trace_ = nullptr;
};

TEST_F(ScriptOnRealWindows, TheTraceWindowHearsEachScript) {
    OpenTraceWindow();
    const std::wstring child = AddScript(L"C:\\s\\child.txt", L"debug\r\n");
    const std::wstring parent =
        AddScript(L"C:\\s\\parent.txt", L"debug\r\n\r\ninclude = C:\\s\\child.txt\r\nvar v = 0x1\r\n");
    EXPECT_EQ(0, Run(parent));
    auto report = [](ULONG_PTR code, const std::wstring& text) {
        return Report{code, static_cast<DWORD>(text.size() * 8 + 8), text};
    };
    EXPECT_EQ((std::vector<Report>{report(1, parent), report(2, L"3"), report(1, child), report(1, parent),
                                   report(2, L"3"), report(2, L"4"), report(10, L"v\t"), report(10, L"v\t1")}),
              reports);
}

TEST_F(ScriptOnRealWindows, WithoutADebugLineTheWindowHearsNothing) {
    OpenTraceWindow();
    EXPECT_EQ(0, Run(AddScript(L"C:\\s\\quiet.txt", L"include = C:\\s\\none.txt\r\n")));
    EXPECT_TRUE(reports.empty());
    EXPECT_EQ(std::vector<std::wstring>{L"Cannot read C:\\s\\none.txt"}, Messages());
}

TEST_F(ScriptOnRealWindows, DateMacrosAreTheRuntimesLocalTime) {
    const std::wstring script =
        AddScript(L"C:\\s\\date.txt", L"include = C:\\?Date?_?Time? ?Week? ?WEEK? ?ShellTime?\r\n");
    for (int attempt = 0; attempt < 3; ++attempt) {
        fake_.prompts().Clear();
        const __time64_t before = _time64(nullptr);
        Run(script);
        if (_time64(nullptr) != before) continue;
        struct tm local = {};
        ASSERT_EQ(0, _localtime64_s(&local, &before));
        wchar_t expected[256] = {};
        wcsftime(expected, 256, L"Cannot read C:\\%Y-%m-%d_%H-%M-%S %a %A %c", &local);
        EXPECT_EQ(std::vector<std::wstring>{expected}, Messages());
        return;
    }
    FAIL() << "the clock never stood still for a moment";
}

}  // namespace
