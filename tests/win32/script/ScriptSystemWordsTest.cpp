// Script words on the real system: the bytes the output file gets, values in the real registry, and
// the clipboard. Message boxes stay fake, so that a test sees them instead of blocking on them.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "platform/win32/Win32Environment.h"
#include "platform/win32/Win32FileSystem.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32System.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#include "unit/Utf16.h"

namespace {

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

std::wstring SystemText(DWORD error) {
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring result = text ? text : L"";
    LocalFree(text);
    return result;
}

class ScriptOnRealSystem : public testing::Test {
protected:
    ScriptOnRealSystem() {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        directory_ = std::wstring(temp) + L"OptionScriptWords-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(directory_.c_str(), nullptr);
        for (const std::wstring& path : kKeyPath) keysBefore_.push_back(KeyExists(path));
    }
    ~ScriptOnRealSystem() override {
        for (const wchar_t* name : {L"script.txt", L"out.txt"}) DeleteFileW(At(name).c_str());
        RemoveDirectoryW(directory_.c_str());
        RegDeleteTreeW(HKEY_CURRENT_USER, (kKeyPath.back() + L"\\" + kTestKey).c_str());
        for (size_t i = kKeyPath.size(); i-- > 0;)
            if (!keysBefore_[i]) RegDeleteKeyW(HKEY_CURRENT_USER, kKeyPath[i].c_str());
    }

    std::wstring At(const std::wstring& name) const { return directory_ + L"\\" + name; }

    // The lines as a script file behind a byte order mark, run with the variables kept for the checks.
    void RunLines(const std::vector<std::wstring>& lines) {
        std::wstring text;
        for (const std::wstring& line : lines) text += line + L"\r\n";
        WriteBytes(At(L"script.txt"), Utf16Bytes(text, true));
        variables_ = VariableTable();
        fake_.prompts().Clear();
        runner_.Run(At(L"script.txt"), L"", L"", selection_, static_cast<uint32_t>(-1), 1, 0, 0, 1, &variables_,
                    nullptr);
    }

    static void WriteBytes(const std::wstring& path, const std::vector<uint8_t>& bytes) {
        HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }

    // Opened without sharing, which only works once nobody else holds the file.
    static std::string ReadBytes(const std::wstring& path) {
        HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) return "<cannot open>";
        std::string bytes(GetFileSize(file, nullptr), '\0');
        DWORD read = 0;
        ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
        CloseHandle(file);
        return bytes.substr(0, read);
    }

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
    platform::win32::Win32Processes processes_;
    platform::Platform platform_{registry_, files_,          environment_,         fake_.prompts(),
                                 system_,   fake_.windows(), fake_.sharedMemory(), processes_};
    platform::Installed installed_{platform_};
    UserDirectories directories_;
    MessageCatalog messages_;
    ScriptRunner runner_{directories_, messages_};
    SelectionList selection_;
    VariableTable variables_;
    std::wstring directory_;
    std::vector<bool> keysBefore_;
};

std::string Wide(std::wstring_view text) {
    const std::vector<uint8_t> bytes = Utf16Bytes(text);
    return std::string(bytes.begin(), bytes.end());
}

TEST_F(ScriptOnRealSystem, TheOutputFileByteForByte) {
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

    // The thread's ANSI code page decides the bytes; the common ones are known here.
    const UINT codePage = GetACP();
    const std::string accent = codePage == 1252 ? "\xE9" : codePage == 65001 ? "\xC3\xA9" : "";
    if (accent.empty()) GTEST_SKIP() << "code page " << codePage;
    RunLines({L"fileopenmode = 1", L"fileopen = " + out, L"filewritea = caf\u00e9"});
    EXPECT_EQ("caf" + accent + "\r\n", ReadBytes(out));
}

TEST_F(ScriptOnRealSystem, AFailedFileOpenShowsThePathAndTheSystemsReason) {
    const std::wstring path = At(L"missing\\out.txt");
    RunLines({L"fileopen = " + path, L"filewritew = lost"});
    EXPECT_EQ((std::vector<std::wstring>{path + L"\n" + SystemText(ERROR_PATH_NOT_FOUND), L"File is not open."}),
              Messages());
}

TEST_F(ScriptOnRealSystem, RegistryWords) {
    RunLines({std::wstring(L"writeregnum = ") + kTestKey, std::wstring(L"writeregnum = ") + kTestKey + L",hex,0x10",
              std::wstring(L"writeregstring = ") + kTestKey + L"\\inner,text,a,b",
              std::wstring(L"writeregstring = ") + kTestKey + L",none,"});
    const std::wstring key = kKeyPath.back() + L"\\" + kTestKey;
    DWORD number = 0xdeadbeef;
    DWORD type = 0;
    DWORD size = sizeof number;
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, key.c_str(), kTestKey, RRF_RT_ANY, &type, &number, &size));
    EXPECT_EQ(static_cast<DWORD>(REG_DWORD), type);
    EXPECT_EQ(0u, number) << "the one field is key, name and number";
    size = sizeof number;
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"hex", RRF_RT_ANY, &type, &number, &size));
    EXPECT_EQ(16u, number);

    wchar_t text[16] = {};
    size = sizeof text;
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, (key + L"\\inner").c_str(), L"text",
                                          RRF_RT_ANY | RRF_NOEXPAND, &type, text, &size));
    EXPECT_EQ(static_cast<DWORD>(REG_SZ), type);
    EXPECT_EQ(std::wstring(L"a,b"), text);
    EXPECT_EQ(8u, size) << "the system keeps the terminator that stands behind the counted bytes";
    EXPECT_EQ(ERROR_FILE_NOT_FOUND,
              RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"none", RRF_RT_ANY, nullptr, nullptr, nullptr));
    EXPECT_TRUE(Messages().empty());
}

TEST_F(ScriptOnRealSystem, ClipboardRoundTripAndMetrics) {
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

}  // namespace
