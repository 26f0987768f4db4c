// "call" and "exec" as the system sees them: the process started, the waits, the question, the result text.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/ScriptCall.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::FakeProgram;

TEST(ScriptCall, WaitsAsTheKindSaysAndGivesTheExitCode) {
    struct Case {
        const char* what;
        CallKind kind;
        std::wstring bootDirectory;  // where the program starts; without it in the now-directory
        FakeProgram program;
        std::vector<int> answers;
        std::optional<std::wstring> result;
        std::vector<std::wstring> events;
        size_t questions;
    };
    const FakeProgram ends{.exitCode = 7}, negative{.exitCode = 0xFFFFFFFF}, noCode{.exitCodeError = 6};
    const FakeProgram outlives{.waitResult = platform::kWaitTimeout, .exitCode = 259}, cannotStart{.starts = false};
    // clang-format off
    const Case cases[] = {
        {"call of a program that ends", CallKind::Call, L"D:\\Boot", ends, {}, L"7",
         {L"wait 4000", L"exit code", L"close"}, 0},
        {"exit codes are signed", CallKind::Call, L"", negative, {}, L"-1", {L"wait 4000", L"exit code", L"close"}, 0},
        {"exec does not wait; bootdir 1 as it stands", CallKind::Exec, L"1", outlives, {}, L"259",
         {L"exit code", L"close"}, 0},
        {"time-out, No: the code as it is then", CallKind::Call, L"", outlives, {7}, L"259",
         {L"wait 4000", L"exit code", L"close"}, 1},
        {"time-out, Yes: ended with 999", CallKind::Call, L"", outlives, {6}, L"259",
         {L"wait 4000", L"terminate 999", L"close"}, 1},
        {"the exit code cannot be read", CallKind::Call, L"", noCode, {}, std::nullopt,
         {L"wait 4000", L"exit code", L"close"}, 1},
        {"cannot start", CallKind::Call, L"", cannotStart, {}, std::nullopt, {}, 1},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        FakePlatform fake;
        fake.processes().SetProgram(c.program);
        for (int answer : c.answers) fake.prompts().Answer(answer);
        const uint64_t before = fake.processes().Ticks();
        EXPECT_EQ(c.result, CallProgram(c.kind, L"tool.exe /x",
                                        {.bootDirectory = c.bootDirectory,
                                         .nowDirectory = L"C:\\Now",
                                         .show = 0,
                                         .timeout = 4000,
                                         .runWait = 30}));
        EXPECT_EQ(c.events, fake.processes().events());
        EXPECT_EQ(c.questions, fake.prompts().shown().size());
        ASSERT_EQ(1u, fake.processes().starts().size());
        const std::wstring directory = c.bootDirectory.empty() ? L"C:\\Now" : c.bootDirectory;
        EXPECT_EQ((platform::ProcessStart{L"tool.exe /x", directory, true, 0, 32}), fake.processes().starts()[0]);
        EXPECT_EQ(c.program.starts ? 30u : 0u, fake.processes().Ticks() - before) << "runwait after a start";
    }
}

}  // namespace
