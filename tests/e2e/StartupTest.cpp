// Option.exe as the host and the user start it: a whole process, from the staged installation.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/HostHandshake.h"
#include "support/OptionWindow.h"
#include "support/Process.h"

using e2e::EnvChanges;
using e2e::RunOption;
using testing::IsEmpty;

TEST(Startup, TheStagedProgramIsThere) {
    std::wstring exe = e2e::OptionExePath();
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(exe.c_str())) << "missing: " << exe.size() << " chars";
}

TEST(Startup, EndsWithExitCodeZero) {
    struct Case {
        const char* what;
        std::vector<std::wstring> args;
        EnvChanges env;
    };
    const Case cases[] = {
        {"/T with a file ends at once", {L"/T", L"C:\\none.txt"}, {}},
        {"switches ignore case", {L"/t", L"x"}, {}},
        {"the last switch counts", {L"/E", L"a", L"/T", L"b"}, {}},
        {"a malformed switch string is ignored", {L"/T", L"x"}, {e2e::HostSwitch(L"1:1:2:3")}},
        {"a switch string without a block",
         {L"/T", L"x"},
         {e2e::HostSwitch(e2e::SwitchString(0, 0, 1, 2, 64, L"share"))}},
        {"an empty switch string", {L"/T", L"x"}, {e2e::HostSwitch(L"")}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(0u, RunOption(c.args, c.env));
    }
}

// No arguments: the option dialog opens and the program ends when it is closed.
TEST(Startup, NoArgumentsOpensTheOptionDialog) {
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindOptionDialog(option.Id());
    ASSERT_NE(nullptr, dialog);
    EXPECT_TRUE(IsWindowVisible(dialog));
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    EXPECT_EQ(0u, option.WaitOrKill());
}

TEST(Startup, EndingAtOnceSendsTheHostNothing) {
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::ShareBlock block(4242, 1, 1024, e2e::ShareBlockText(L"C:\\work", L"", {L"C:\\work\\a.txt"}, {}));
    ASSERT_TRUE(block.Valid());

    EXPECT_EQ(0u, RunOption({L"/T", L"C:\\none.txt"}, {e2e::HostSwitch(block.Switch())}));
    EXPECT_THAT(host.Lines(), IsEmpty());
}
