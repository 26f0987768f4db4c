// "/A" as the host uses it: a file that is no definition file opens through the user's editor
// script, which here starts a test program that logs how it was started.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/Process.h"

namespace {

std::wstring Variable(const wchar_t* name) {
    wchar_t value[MAX_PATH] = {};
    GetEnvironmentVariableW(name, value, MAX_PATH);
    return value;
}

std::string Utf8(const std::wstring& text) {
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

void WriteFileBytes(const std::wstring& path, const std::string& bytes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, file);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}

std::string ReadFileBytes(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes;
}

// A script as the program reads scripts: UTF-16 little-endian behind a byte order mark.
std::string ScriptBytes(const std::wstring& text) {
    std::string bytes = "\xFF\xFE";
    for (wchar_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

// The user's editor script, replaced for the test and put back after it.
class EditorScript {
public:
    explicit EditorScript(const std::wstring& text)
        : path_(Variable(L"LOCALAPPDATA") + L"\\Qor\\Script\\Editor.txt"), saved_(ReadFileBytes(path_)) {
        CreateDirectoryW((Variable(L"LOCALAPPDATA") + L"\\Qor\\Script").c_str(), nullptr);
        WriteFileBytes(path_, ScriptBytes(text));
    }
    ~EditorScript() {
        if (saved_.empty())
            DeleteFileW(path_.c_str());
        else
            WriteFileBytes(path_, saved_);
    }

private:
    std::wstring path_;
    std::string saved_;
};

TEST(EditorScript, SlashAOpensTheFileThroughTheUsersScript) {
    const std::wstring temp = Variable(L"TEMP");
    const std::wstring log = temp + L"\\option-editor-script.log";
    const std::wstring file = temp + L"\\option notes.txt";
    DeleteFileW(log.c_str());
    WriteFileBytes(file, "plain text, no definition file\r\n");
    EditorScript script(L"commandlineoption = --log \"" + log + L"\" ?SelFile?\r\nrun = " + e2e::TestDirectory() +
                        L"\\DropTarget.exe\r\n");

    EXPECT_EQ(0u, e2e::RunOption({L"/A", file}));
    const std::string expected = "args --log \"" + Utf8(log) + "\" \"" + Utf8(file) + "\"";
    std::vector<std::string> lines;
    for (int tries = 0; tries < 100; ++tries) {
        lines = e2e::ReadLogLines(log);
        if (lines.size() >= 2) break;
        Sleep(50);
    }
    ASSERT_GE(lines.size(), 2u) << "the editor did not start";
    EXPECT_EQ(expected, lines[1]);
    if (HWND editor = FindWindowW(L"OptionTests.DropTarget", nullptr)) PostMessageW(editor, WM_CLOSE, 0, 0);
    DeleteFileW(file.c_str());
}

}  // namespace
