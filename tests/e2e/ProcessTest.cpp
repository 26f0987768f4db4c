// What the harness promises about the processes it starts: their environment, their arguments, their end.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/Process.h"

using e2e::EnvChanges;
using e2e::FakeHost;
using e2e::FakeHostOptions;
using testing::ElementsAre;

TEST(Process, ChildSeesTheEnvironmentWithTheChangesApplied) {
    SetEnvironmentVariableW(L"E2E_INHERITED", L"from the test");
    SetEnvironmentVariableW(L"E2E_REMOVED", L"from the test");
    SetEnvironmentVariableW(L"E2E_REPLACED", L"old");
    FakeHostOptions options{.hidden = true};
    options.env = {{L"E2E_SET", L"C:\\a b\\設定"},
                   {L"E2E_EMPTY", L""},
                   {L"E2E_REMOVED", std::nullopt},
                   {L"e2e_replaced", L"new"},
                   {L"E2E_NEVER_THERE", std::nullopt}};
    options.printEnv = {L"E2E_INHERITED", L"E2E_SET",      L"E2E_EMPTY",
                        L"E2E_REMOVED",   L"E2E_REPLACED", L"E2E_NEVER_THERE"};
    FakeHost host(options);
    ASSERT_TRUE(host.Window());

    EXPECT_THAT(e2e::ReadLogLines(host.LogPath()),
                ElementsAre("env E2E_INHERITED=from the test", "env E2E_SET=C:\\a b\\\xE8\xA8\xAD\xE5\xAE\x9A",
                            "env E2E_EMPTY=", "env E2E_REMOVED unset", "env E2E_REPLACED=new",
                            "env E2E_NEVER_THERE unset", "ready"));
    SetEnvironmentVariableW(L"E2E_INHERITED", nullptr);
    SetEnvironmentVariableW(L"E2E_REMOVED", nullptr);
    SetEnvironmentVariableW(L"E2E_REPLACED", nullptr);
}

TEST(Process, ArgumentsArriveAsTheyWereGiven) {
    const std::wstring titles[] = {L"Qor", L"two words", L"say \"hi\"", L"ends in \\", L"a\\\\\"b", L"トレース", L""};
    for (const std::wstring& title : titles) {
        FakeHost host(FakeHostOptions{.title = title, .hidden = true});
        ASSERT_TRUE(host.Window());
        wchar_t text[256] = L"poison";
        GetWindowTextW(host.Window(), text, 256);
        EXPECT_EQ(title, text);
    }
}

TEST(Process, AProgramThatDoesNotEndIsKilledAtTheTimeOut) {
    e2e::Process process =
        e2e::Process::Start(e2e::TestDirectory() + L"\\FakeHost.exe", {L"--log", L"NUL", L"--hidden"});
    ASSERT_TRUE(process);
    DWORD code = 0;
    EXPECT_NONFATAL_FAILURE(code = process.WaitOrKill(300), "was killed");
    EXPECT_EQ(e2e::kKilledExitCode, code);
    EXPECT_FALSE(process.Running());
}

TEST(Process, AProgramThatCannotStartFailsTheTest) {
    e2e::Process process;
    EXPECT_NONFATAL_FAILURE(process = e2e::Process::Start(L"Z:\\no\\such\\program.exe", {}), "cannot start");
    EXPECT_FALSE(process);
}
