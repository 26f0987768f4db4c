#include "services/ProcessLaunch.h"

#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"
#include "services/MessageCatalog.h"
#include "services/SystemError.h"
#include "unit/Utf16.h"

namespace {

using platform::ProcessStart;
using platform::ShellRequest;
using platform::fake::FakePlatform;
using platform::fake::FakeProgram;
using platform::fake::PostedDrop;
using platform::fake::ShownMessage;
using Strings = std::vector<std::wstring>;

// Failures a real program cannot be made to show on cue: the drop polls every 50 ms for ten seconds for the
// program's first window, and each failure is told from the message file and ends the drop.
TEST(ProcessLaunch, DropLaunchDropsTheFilesOnTheProgramsFirstWindowOnceItShows) {
    // clang-format off
    struct Case { const char* what; FakeProgram program; Strings files; std::vector<ShownMessage> shown; Strings events;
                  bool dropped; uint64_t ticks; };
    const Strings idle{L"idle 10000", L"close"};
    const Case cases[] = {
        {"dropped once the window shows", {.walksBeforeWindow = 3}, {L"C:\\a.txt", L"D:\\b c"}, {}, idle, true, 150},
        {"an empty list starts the program and drops nothing", {}, {}, {}, idle, false, 0},
        {"cannot start", {.starts = false}, {L"C:\\a.txt"}, {{L"cannot start\nC:\\v.exe", 0}}, {}, false, 0},
        {"not idle in time", {.idleResult = platform::kWaitTimeout}, {L"C:\\a.txt"}, {{L"not idle", 0}}, idle, false,
         0},
        {"the wait fails", {.idleResult = platform::kWaitFailed, .idleError = 6}, {L"C:\\a.txt"},
         {{L"Error 6.\r\n", 0}}, idle, false, 0},
        {"no window in ten seconds", {.walksBeforeWindow = -1}, {L"C:\\a.txt"}, {{L"no window", 0}}, idle, false,
         10050},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        FakePlatform fake;
        fake.files().AddDirectory(L"C:\\Lang");
        fake.files().AddFile(L"C:\\Lang\\Msg.txt",
                             Utf16Bytes(L"62541\tcannot start\r\n62544\tnot idle\r\n62547\tno window\r\n", true));
        MessageCatalog messages;
        messages.SetPath(L"C:\\Lang\\Msg.txt");
        fake.processes().SetProgram(c.program);
        const uint64_t start = fake.processes().Ticks();
        DropLaunch(L"C:\\v.exe", c.files, messages);
        EXPECT_EQ((std::vector<ProcessStart>{{L"C:\\v.exe", L"", false, 0, 32}}), fake.processes().starts());
        EXPECT_EQ(c.shown, fake.prompts().shown());
        EXPECT_EQ(c.events, fake.processes().events());
        EXPECT_EQ(c.ticks, fake.processes().Ticks() - start);
        std::vector<PostedDrop> drops;
        if (c.dropped) drops.push_back({0x5150, DropFilesBlock(c.files)});
        EXPECT_EQ(drops, fake.processes().drops());
        EXPECT_EQ(c.shown.empty() ? 1u : 0u, fake.windows().forced().size()) << "the window comes forward";
    }
}

TEST(ProcessLaunch, ShellLaunchNormalisesTheFileAndTakesItsDirectory) {
    const std::wstring deep = L"C:\\" + std::wstring(260, L'd') + L"\\";
    // clang-format off
    struct Case { const char* what; std::wstring file; std::wstring directory; bool wait; ShellRequest expected; };
    const Case cases[] = {
        {"directory of the file", L"C:\\Tools\\app.exe", L"", false,
         {512, 0x77, L"C:\\Tools\\app.exe", L"-p", L"C:\\Tools\\", 3}},
        {"directory given, waiting", L"C:\\Tools\\app.exe", L"D:\\work", true,
         {768, 0x77, L"C:\\Tools\\app.exe", L"-p", L"D:\\work", 3}},
        {"long-path prefix dropped", L"\\\\?\\C:\\x\\y.txt", L"", false,
         {512, 0x77, L"C:\\x\\y.txt", L"-p", L"C:\\x\\", 3}},
        {"UNC prefix dropped", L"\\\\?\\UNC\\srv\\s\\y.txt", L"", false,
         {512, 0x77, L"srv\\s\\y.txt", L"-p", L"srv\\s\\", 3}},
        {"long paths get the prefix", deep + L"f.txt", L"", false,
         {512, 0x77, L"\\\\?\\" + deep + L"f.txt", L"-p", L"\\\\?\\" + deep, 3}},
        {"a file without a directory", L"notepad.exe", L"", false,
         {512, 0x77, L"notepad.exe", L"-p", L"notepad.exe", 3}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        FakePlatform fake;
        fake.windows().SetMainWindow(0x77);
        ShellLaunch(c.file, L"-p", c.directory, c.wait, 3);
        EXPECT_EQ((std::vector<ShellRequest>{c.expected}), fake.processes().shellRequests());
    }
}

TEST(ProcessLaunch, SystemErrorIsShownUnlessThereIsNone) {
    FakePlatform fake;
    fake.processes().SetErrorText(5, L"Access is denied.\r\n");
    ShowSystemError(0);
    ShowSystemError(5);
    ShowSystemError(5, L"C:\\x.dll");
    EXPECT_EQ((std::vector<ShownMessage>{{L"Access is denied.\r\n", 0}, {L"C:\\x.dll\nAccess is denied.\r\n", 0}}),
              fake.prompts().shown());
}

}  // namespace
