// A script steering the host: the user's editor script, run by "/A", posts and sends messages and
// texts to the test host, and shows message boxes that the host's window owns.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/EditorScript.h"
#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/Process.h"
#include "support/ProcessDialogs.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// Any file the editor script is run for; the script here does not look at it.
class SelectedFile {
public:
    SelectedFile() {
        wchar_t temp[MAX_PATH + 1] = {};
        GetTempPathW(MAX_PATH + 1, temp);
        path_ = std::wstring(temp) + L"option host words.txt";
        e2e::WriteFileBytes(path_, "plain text\r\n");
    }
    ~SelectedFile() { DeleteFileW(path_.c_str()); }
    const std::wstring& path() const { return path_; }

private:
    std::wstring path_;
};

// The lines the host logged once count of them are there, or what it has after five seconds.
std::vector<std::string> TakeLines(e2e::FakeHost& host, size_t count) {
    std::vector<std::string> lines;
    for (int tries = 0; tries < 100; ++tries) {
        std::vector<std::string> more = host.TakeLines();
        lines.insert(lines.end(), more.begin(), more.end());
        if (lines.size() >= count) break;
        Sleep(50);
    }
    return lines;
}

TEST(HostWords, TheHostLogsWhatTheScriptPostsAndSends) {
    e2e::FakeHost host({.hidden = true});
    ASSERT_TRUE(host.Window());
    SelectedFile file;
    {
        // Posted messages wait in the host's queue; sent ones come first. Hence two runs.
        e2e::EditorScript script(
            L"var id = 40001\r\npostmessage = id, 7\r\npostmessage1 = 3,4\r\npostmessage2 = 5\r\npostwait = 6\r\n"
            L"postmessagebar = 7\r\npostmessageall = -1,-2\r\n");
        EXPECT_EQ(0u, e2e::RunOption({L"/A", file.path()}));
        EXPECT_THAT(TakeLines(host, 6),
                    ElementsAre("command 40001 7", "message 32777 3 4", "message 32778 5 0", "message 32779 6 0",
                                "message 32780 7 0", "message 32776 18446744073709551615 -2"));
    }
    {
        e2e::EditorScript script(
            L"sendmessage = 40002\r\nsendmessageall = 8,9\r\nselect = C:\\a b.txt\r\nfolderjump = 2, C:\\Data\r\n"
            L"filejump = 0, C:\\Data\\.\\x.txt\r\nfavoritejump = 0, C:\\Data\\..\\Tools\r\nubjump = 10, x\r\n"
            L"system_command = 3000, hi\r\nfullstateopen = ?Date?\r\nubjump = 11, x\r\nselect = not sent\r\n");
        e2e::Process option = e2e::StartOption({L"/A", file.path()});
        ASSERT_TRUE(option);
        // Each of these waits for the host, so they are logged in the script's order.
        EXPECT_THAT(TakeLines(host, 9),
                    ElementsAre("command 40002", "message 32776 8 9", "copydata 800 C:\\a b.txt",
                                "copydata 300 C:\\Data", "copydata 103 C:\\Data\\x.txt", "copydata 901 10/C:\\Tools",
                                "copydata 1003 9/x", "copydata 3000 hi", "copydata 201 ?Date?"));
        HWND error = e2e::FindMessageBox(option.Id());
        ASSERT_TRUE(error);
        EXPECT_THAT(e2e::Utf8(e2e::DialogText(error)), HasSubstr("ubjump = 11, x"));
        ASSERT_TRUE(e2e::Answer(error, IDOK));
        EXPECT_EQ(0u, option.WaitOrKill());
        EXPECT_TRUE(host.TakeLines().empty()) << "the run ended at the bad ubjump";
    }
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

TEST(HostWords, MessageBoxesAreOwnedByTheHostAndTheirAnswersCount) {
    e2e::FakeHost host({.hidden = true});
    ASSERT_TRUE(host.Window());
    SelectedFile file;
    e2e::EditorScript script(
        L"messageboxyn = Go on?\r\nvar button\r\nbutton = messagebox, 0x21, Pick one\r\n"
        L"messageboxok = Got button\r\nmessageboxyn = Stop here?\r\nmessageboxok = never shown\r\n");
    e2e::Process option = e2e::StartOption({L"/A", file.path()});
    ASSERT_TRUE(option);

    struct Step {
        const char* text;
        std::vector<int> buttons;
        int answer;
    };
    const Step steps[] = {
        {"Go on?", {IDYES, IDNO}, IDYES},
        {"Pick one", {IDOK, IDCANCEL}, IDCANCEL},
        {"Got 2", {IDOK}, IDOK},
        {"Stop here?", {IDYES, IDNO}, IDNO},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.text);
        HWND box = e2e::FindMessageBox(option.Id());
        ASSERT_TRUE(box);
        wchar_t title[64] = {};
        GetWindowTextW(box, title, 64);
        EXPECT_EQ(std::wstring(L"Qor"), title);
        EXPECT_EQ(host.Window(), GetWindow(box, GW_OWNER));
        EXPECT_THAT(e2e::Utf8(e2e::DialogText(box)), HasSubstr(step.text));
        EXPECT_EQ(step.buttons, Buttons(box));
        ASSERT_TRUE(e2e::Answer(box, step.answer));
    }
    // No ended the run: the last box never comes, and the program ends by itself.
    EXPECT_EQ(0u, option.WaitOrKill());
}

}  // namespace
