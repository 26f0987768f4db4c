// "/A" as the host uses it: a file that is no definition file opens through the user's editor
// script, which here starts a test program that logs how it was started.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/EditorScript.h"
#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/Process.h"

namespace {

std::wstring Variable(const wchar_t* name) {
    wchar_t value[MAX_PATH] = {};
    GetEnvironmentVariableW(name, value, MAX_PATH);
    return value;
}

TEST(EditorScript, SlashAOpensTheFileThroughTheUsersScript) {
    const std::wstring temp = Variable(L"TEMP");
    const std::wstring log = temp + L"\\option-editor-script.log";
    const std::wstring file = temp + L"\\option notes.txt";
    DeleteFileW(log.c_str());
    ASSERT_TRUE(e2e::WriteFileBytes(file, "plain text, no definition file\r\n"));
    e2e::EditorScript script(L"commandlineoption = --log \"" + log + L"\" ?SelFile?\r\nrun = " + e2e::TestDirectory() +
                             L"\\DropTarget.exe\r\n");

    EXPECT_EQ(0u, e2e::RunOption({L"/A", file}));
    const std::string expected = "args --log \"" + e2e::Utf8(log) + "\" \"" + e2e::Utf8(file) + "\"";
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
