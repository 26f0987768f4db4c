// "/A" on a file that is no definition file opens it through the user's editor script.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/Process.h"
#include "support/OptionWindow.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::wstring TempPath(const wchar_t* name) {
    wchar_t temp[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH + 1, temp);
    return std::wstring(temp) + name;
}

// The user's "Script\Editor.txt", which "/A" runs.
std::wstring EditorScriptPath() {
    wchar_t value[MAX_PATH] = {};
    GetEnvironmentVariableW(L"LOCALAPPDATA", value, MAX_PATH);
    const std::wstring folder = std::wstring(value) + L"\\Qor\\Script";
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"\\Editor.txt";
}

// Reads until done accepts what was read, or five seconds have passed; gives what was read last.
template <typename Read, typename Done>
auto Poll(Read read, Done done) {
    auto value = read();
    for (int tries = 0; tries < 100 && !done(value); ++tries) {
        Sleep(50);
        value = read();
    }
    return value;
}

// The host's lines from now on, once the last of them is there.
std::vector<std::string> TakeLinesUntil(e2e::FakeHost& host, const std::string& last) {
    std::vector<std::string> lines;
    return Poll(
        [&] {
            for (std::string& line : host.TakeLines()) lines.push_back(std::move(line));
            return lines;
        },
        [&](const std::vector<std::string>& taken) { return !taken.empty() && taken.back() == last; });
}

// The visible buttons of a message box among OK, Cancel, Yes and No.
std::vector<int> Buttons(HWND box) {
    std::vector<int> buttons;
    for (int id : {IDOK, IDCANCEL, IDYES, IDNO}) {
        HWND button = GetDlgItem(box, id);
        if (button && IsWindowVisible(button)) buttons.push_back(id);
    }
    return buttons;
}

// Sent messages and texts reach the host in the script's order, each waiting for it, the posted ones behind
// them; the script's message boxes are the host's, and a line the script cannot run ends the run.
TEST(EditorScript, TheScriptStartsTheEditorSteersTheHostAndStopsAtABadLine) {
    e2e::FakeHost host({.hidden = true});
    ASSERT_TRUE(host.Window());
    // The file the script is run for: a plain text file with a blank in its name.
    e2e::ScopedFile file(TempPath(L"option notes.txt"));
    e2e::WriteFileBytes(file.Path(), "plain text\r\n");
    const e2e::ScopedFile log(TempPath(L"option-editor-script.log"));
    const e2e::ScopedFile script(EditorScriptPath());
    e2e::WriteUtf16File(
        script.Path(),
        L"\uFEFFcommandlineoption = --log \"" + log.Path() + L"\" ?SelFile?\r\nrun = " + e2e::TestDirectory() +
            L"\\DropTarget.exe\r\n"
            L"sendmessage = 40002\r\nsendmessageall = 8,9\r\nselect = C:\\a b.txt\r\n"
            L"favoritejump = 0, C:\\Data\\..\\Tools\r\n"
            L"var id = 40001\r\npostmessage = id, 7\r\npostmessage1 = 3,4\r\npostmessageall = -1,-2\r\n"
            L"messageboxyn = Go on?\r\nvar button\r\nbutton = messagebox, 0x21, Pick one\r\n"
            L"messageboxok = Got button\r\nubjump = 11, x\r\npostmessage = 40009\r\nmessageboxok = never shown\r\n");
    e2e::Process option = e2e::StartOption({L"/A", file.Path()});
    ASSERT_TRUE(option);
    EXPECT_THAT(
        TakeLinesUntil(host, "message 32776 18446744073709551615 -2"),
        ElementsAre("command 40002", "message 32776 8 9", "copydata 800 C:\\a b.txt", "copydata 901 10/C:\\Tools",
                    "command 40001 7", "message 32777 3 4", "message 32776 18446744073709551615 -2"));

    // The script's boxes are the host's, captioned "Qor"; the program's own says why the run ends.
    // clang-format off
    struct Step { const char* text; std::vector<int> buttons; int answer; HWND owner; };
    // clang-format on
    const Step steps[] = {
        {"Go on?", {IDYES, IDNO}, IDYES, host.Window()},
        {"Pick one", {IDOK, IDCANCEL}, IDCANCEL, host.Window()},
        {"Got 2", {IDOK}, IDOK, host.Window()},
        {"ubjump = 11, x", {IDOK}, IDOK, nullptr},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.text);
        HWND box = e2e::FindMessageBox(option.Id());
        ASSERT_TRUE(box);
        wchar_t title[64] = {};
        GetWindowTextW(box, title, 64);
        EXPECT_EQ(step.owner ? L"Qor" : L"Option", std::wstring(title));
        EXPECT_EQ(step.owner, GetWindow(box, GW_OWNER));
        EXPECT_THAT(e2e::Utf8(e2e::DialogText(box)), HasSubstr(step.text));
        EXPECT_EQ(step.buttons, Buttons(box));
        ASSERT_TRUE(e2e::Answer(box, step.answer));
    }
    EXPECT_EQ(0u, option.WaitOrKill());

    const std::vector<std::string> editor =
        Poll([&] { return e2e::ReadLogLines(log.Path()); }, [](const auto& lines) { return lines.size() >= 2; });
    ASSERT_GE(editor.size(), 2u) << "the editor did not start";
    EXPECT_EQ("args --log \"" + e2e::Utf8(log.Path()) + "\" \"" + e2e::Utf8(file.Path()) + "\"", editor[1]);
    if (HWND window = FindWindowW(L"OptionTests.DropTarget", nullptr)) PostMessageW(window, WM_CLOSE, 0, 0);
    // A message posted now comes behind anything the script posted, so nothing was after the bad line
    // (the host only comes forward as each box closes).
    PostMessageW(host.Window(), WM_COMMAND, 1, 0);
    std::vector<std::string> after = TakeLinesUntil(host, "command 1");
    std::erase(after, "activate");
    EXPECT_THAT(after, ElementsAre("command 1"));
}

}  // namespace
