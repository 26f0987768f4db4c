// What the harness promises about the processes it starts: their arguments and their end.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/Process.h"

using e2e::FakeHost;
using e2e::FakeHostOptions;

// The harness quotes arguments so that they arrive as they were given: the title FakeHost.exe shows
// is one, with blanks, quotes, backslashes before a quote and at the end, and more than ASCII.
TEST(Process, ArgumentsArriveAsTheyWereGiven) {
    for (const std::wstring title : {L"say \"hi\" a\\\\\"b トレース ends in \\", L""}) {
        FakeHost host(FakeHostOptions{.title = title, .hidden = true});
        ASSERT_TRUE(host.Window());
        wchar_t text[256] = L"poison";
        GetWindowTextW(host.Window(), text, 256);
        EXPECT_EQ(title, text);
    }
}

TEST(Process, AProgramThatDoesNotEndOrCannotStartFailsTheTest) {
    e2e::Process running =
        e2e::Process::Start(e2e::TestDirectory() + L"\\FakeHost.exe", {L"--log", L"NUL", L"--hidden"});
    ASSERT_TRUE(running);
    DWORD code = 0;
    EXPECT_NONFATAL_FAILURE(code = running.WaitOrKill(300), "was killed");
    EXPECT_EQ(e2e::kKilledExitCode, code);
    EXPECT_FALSE(running.Running());

    e2e::Process missing;
    EXPECT_NONFATAL_FAILURE(missing = e2e::Process::Start(L"Z:\\no\\such\\program.exe", {}), "cannot start");
    EXPECT_FALSE(missing);
}
