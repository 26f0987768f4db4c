// Scripts on the real system; message boxes stay fake, so that a test sees them instead of blocking on them.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "platform/win32/Win32Environment.h"
#include "platform/win32/Win32FileSystem.h"
#include "platform/win32/Win32HostWindows.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32System.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#include "unit/Utf16.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using testing_support::SystemText;

constexpr const wchar_t* kTestKey = L"OptionScriptTest";
// The scripts' key and the keys above it, deepest last.
const std::vector<std::wstring> kKeyPath = {L"Software\\Tarnwick", L"Software\\Tarnwick\\Qor",
                                            L"Software\\Tarnwick\\Qor\\Main001"};

bool KeyExists(const std::wstring& path) {
    HKEY key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

// Opened without sharing, which only works once nobody else holds the file.
std::string ReadBytes(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "<cannot open>";
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes.substr(0, read);
}

// "value:<n>", "text:<text>/<bytes>" or "error <code>" of a value under the test key.
std::wstring RegValue(const std::wstring& subkey, const std::wstring& name) {
    BYTE data[64] = {};
    DWORD type = 0;
    DWORD size = sizeof data;
    const std::wstring key = kKeyPath.back() + L"\\" + kTestKey + subkey;
    const LSTATUS status =
        RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_ANY | RRF_NOEXPAND, &type, data, &size);
    if (status != ERROR_SUCCESS) return L"error " + std::to_wstring(status);
    if (type == REG_DWORD) return L"value:" + std::to_wstring(*reinterpret_cast<const DWORD*>(data));
    return L"text:" + std::wstring(reinterpret_cast<const wchar_t*>(data)) + L"/" + std::to_wstring(size);
}

// What a window titled as the trace window hears: "<code> <bytes> <text>" of each report.
std::vector<std::wstring> reports;

LRESULT CALLBACK TraceProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_COPYDATA) {
        const auto& copy = *reinterpret_cast<const COPYDATASTRUCT*>(lp);
        reports.push_back(std::to_wstring(copy.dwData) + L" " + std::to_wstring(copy.cbData) + L" " +
                          static_cast<const wchar_t*>(copy.lpData));
        return TRUE;
    }
    return DefWindowProcW(hwnd, msg, wp, lp);
}

class ScriptOnWindows : public testing::Test {
protected:
    ScriptOnWindows() {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        directory_ = std::wstring(temp) + L"OptionScriptWords-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(directory_.c_str(), nullptr);
        for (const std::wstring& path : kKeyPath) keysBefore_.push_back(KeyExists(path));
    }
    ~ScriptOnWindows() override {
        for (const std::wstring& name : written_) DeleteFileW(At(name).c_str());
        RemoveDirectoryW(directory_.c_str());
        RegDeleteTreeW(HKEY_CURRENT_USER, (kKeyPath.back() + L"\\" + kTestKey).c_str());
        for (size_t i = kKeyPath.size(); i-- > 0;)
            if (!keysBefore_[i]) RegDeleteKeyW(HKEY_CURRENT_USER, kKeyPath[i].c_str());
    }

    std::wstring At(const std::wstring& name) const { return directory_ + L"\\" + name; }

    // A script of these lines behind a byte order mark in the test's directory; returns its path.
    std::wstring AddScript(const std::wstring& name, const std::vector<std::wstring>& lines) {
        std::wstring text;
        for (const std::wstring& line : lines) text += line + L"\r\n";
        const std::vector<uint8_t> bytes = Utf16Bytes(text, true);
        written_.push_back(name);
        HANDLE file = CreateFileW(At(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        EXPECT_NE(INVALID_HANDLE_VALUE, file);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
        return At(name);
    }

    int32_t Run(const std::wstring& path) {
        variables_ = VariableTable();
        fake_.prompts().Clear();
        return runner_.Run(path, L"", L"", selection_, static_cast<uint32_t>(-1), 1, 0, 0, 1, &variables_, nullptr);
    }

    // The lines as a script of their own, run with the variables kept for the checks.
    int32_t RunLines(const std::vector<std::wstring>& lines) { return Run(AddScript(L"script.txt", lines)); }

    std::wstring Value(const std::wstring& name) const {
        const std::wstring* value = variables_.Find(name);
        return value ? *value : L"<none>";
    }

    std::vector<std::wstring> Messages() {
        std::vector<std::wstring> texts;
        for (const auto& shown : fake_.prompts().shown()) texts.push_back(shown.text);
        return texts;
    }

    platform::fake::FakePlatform fake_;
    platform::win32::Win32Registry registry_;
    platform::win32::Win32FileSystem files_;
    platform::win32::Win32Environment environment_;
    platform::win32::Win32System system_;
    platform::win32::Win32HostWindows windows_;
    platform::win32::Win32Processes processes_;
    platform::Platform platform_{
        registry_,  files_,        environment_,      fake_.prompts(), system_, windows_, fake_.sharedMemory(),
        processes_, fake_.shell(), fake_.codePages(), fake_.images()};
    platform::Installed installed_{platform_};
    UserDirectories directories_;
    MessageCatalog messages_;
    ScriptRunner runner_{directories_, messages_};
    SelectionList selection_;
    VariableTable variables_;
    std::wstring directory_;
    std::vector<std::wstring> written_{L"out.txt"};  // names of the files to delete at the end
    std::vector<bool> keysBefore_;
};

TEST_F(ScriptOnWindows, TheOutputFileByteForByte) {
    const std::wstring out = At(L"out.txt");
    RunLines({L"var $x = keep", L"fileopenmode = 1", L"fileopen = " + out, L"bomout = 1", L"filewritew = a\u00e9\tz",
              L"filewritew = b", L"filewritea = c\td", L"$x = fileread," + out});
    EXPECT_EQ(L"keep", Value(L"$x")) << "the file is the script's alone while it is open";
    EXPECT_EQ(std::vector<std::wstring>{L"File is not open."}, Messages());
    const std::string first = "\xFF\xFE" + Wide(L"a\u00e9\tz\r\nb\r\n") + "c\td\r\n";
    EXPECT_EQ(first, ReadBytes(out)) << "closed at the end of the script";

    RunLines({L"fileopen = " + out, L"filewritew = e", L"fileclose", L"filewritea = lost"});
    EXPECT_EQ(first + Wide(L"e\r\n"), ReadBytes(out)) << "appended";
    EXPECT_EQ(std::vector<std::wstring>{L"File is not open."}, Messages());

    // A file that cannot be opened shows its path and the system's reason.
    const std::wstring missing = At(L"missing\\out.txt");
    RunLines({L"fileopen = " + missing, L"filewritew = lost"});
    EXPECT_EQ((std::vector<std::wstring>{missing + L"\n" + SystemText(ERROR_PATH_NOT_FOUND), L"File is not open."}),
              Messages());

    // The thread's ANSI code page decides the bytes; the common ones are known here.
    const UINT codePage = GetACP();
    const std::string accent = codePage == 1252 ? "\xE9" : codePage == 65001 ? "\xC3\xA9" : "";
    if (accent.empty()) GTEST_SKIP() << "code page " << codePage;
    RunLines({L"fileopenmode = 1", L"fileopen = " + out, L"filewritea = caf\u00e9"});
    EXPECT_EQ("caf" + accent + "\r\n", ReadBytes(out));
}

TEST_F(ScriptOnWindows, RegistryWords) {
    RunLines({std::wstring(L"writeregnum = ") + kTestKey, std::wstring(L"writeregnum = ") + kTestKey + L",hex,0x10",
              std::wstring(L"writeregstring = ") + kTestKey + L"\\inner,text,a,b",
              std::wstring(L"writeregstring = ") + kTestKey + L",none,"});
    // The one field is key, name and number; the system keeps the terminator behind the counted bytes.
    EXPECT_EQ((std::vector<std::wstring>{L"value:0", L"value:16", L"text:a,b/8", L"error 2"}),
              (std::vector<std::wstring>{RegValue(L"", kTestKey), RegValue(L"", L"hex"), RegValue(L"\\inner", L"text"),
                                         RegValue(L"", L"none")}));
    EXPECT_TRUE(Messages().empty());
}

TEST_F(ScriptOnWindows, ClipboardRoundTripAndMetrics) {
    RunLines({L"var $x", L"var $w", L"setclipboardtext = Round trip 0x10", L"$x = GetClipboardText",
              L"$w = GetSystemMetrics,0"});
    EXPECT_EQ(L"Round trip 0x10", Value(L"$x"));
    EXPECT_EQ(std::to_wstring(GetSystemMetrics(SM_CXSCREEN)), Value(L"$w"));

    ASSERT_TRUE(OpenClipboard(nullptr));
    HANDLE block = GetClipboardData(CF_UNICODETEXT);
    const wchar_t* unicode = block ? static_cast<const wchar_t*>(GlobalLock(block)) : nullptr;
    EXPECT_EQ(std::wstring(L"Round trip 0x10"), unicode ? unicode : L"<none>") << "put there as Unicode text";
    if (unicode) GlobalUnlock(block);
    EmptyClipboard();
    CloseClipboard();

    RunLines({L"var $x = keep", L"$x = GetClipboardText"});
    EXPECT_EQ(L"", Value(L"$x")) << "no text on the clipboard";
    EXPECT_TRUE(Messages().empty());
}

TEST_F(ScriptOnWindows, TheTraceWindowHearsEachScript) {
    constexpr const wchar_t* kTraceClass = L"OptionTestsScriptTrace";
    testing_support::RegisterWindowClass(kTraceClass, TraceProc);
    HWND trace = CreateWindowExW(0, kTraceClass, L"Script trace Qor", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    ASSERT_TRUE(trace);
    reports.clear();
    const std::wstring child = AddScript(L"child.txt", {L"debug"});
    const std::wstring parent = AddScript(L"parent.txt", {L"debug", L"", L"include = " + child, L"var v = 0x1"});
    EXPECT_EQ(0, Run(parent));
    auto report = [](int code, const std::wstring& text) {
        return std::to_wstring(code) + L" " + std::to_wstring(text.size() * 8 + 8) + L" " + text;
    };
    EXPECT_EQ((std::vector<std::wstring>{report(1, parent), report(2, L"3"), report(1, child), report(1, parent),
                                         report(2, L"3"), report(2, L"4"), report(10, L"v\t"), report(10, L"v\t1")}),
              reports);
    DestroyWindow(trace);
    UnregisterClassW(kTraceClass, GetModuleHandleW(nullptr));
}

}  // namespace
