#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/LaunchQueue.h"
#include "script/LaunchRun.h"

namespace {

constexpr const wchar_t* kViewer = L"C:\\Tools\\view.exe";
constexpr const wchar_t* kWorkDir = L"C:\\Work";
const SelectionList kThreeItems = {L"C:\\Data\\a.txt", L"C:\\Data\\b b.txt", L"C:\\Data\\c.log"};

class LaunchRunTest : public testing::Test {
protected:
    static constexpr uint64_t kStartTicks = 1000000;
    platform::fake::FakePlatform fake;
};

TEST_F(LaunchRunTest, ArgumentTextsDecideHowManyStarts) {
    struct Case {
        const char* what;
        SelectionList selection;
        std::wstring arguments;
        bool multi;
        int shift;                          // 0 up, 1 held, 2 held but the line does not ask for silence
        std::vector<std::wstring> started;  // the argument text of each start
    };
    // clang-format off
    const Case cases[] = {
        {"one start for all, a blank behind each", kThreeItems, L"/v ?SelFile?", true, 0,
         {L"/v \"C:\\Data\\a.txt\" \"C:\\Data\\b b.txt\" \"C:\\Data\\c.log\" "}},
        {"joined names", kThreeItems, L"?name?|?Ext?", true, 0, {L"\"a\" \"b b\" \"c\" |.txt .txt .log "}},
        {"no items: the macros go", {}, L"/v ?SelFile? ?ext?", false, 0, {L"/v  "}},
        {"Shift held: no arguments, one start", kThreeItems, L"/v ?SelFile?", false, 1, {L""}},
        {"Shift held but no silence asked", kThreeItems, L"/v", false, 2, {L"/v"}},
        {"a line feed alone starts nothing", kThreeItems, L"\n", false, 0, {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        platform::fake::FakePlatform fresh;
        fresh.windows().SetKeyDown(16, c.shift != 0);
        LaunchRun(kViewer, c.selection, kWorkDir, c.shift != 2, c.arguments, c.multi, {});
        std::vector<std::wstring> started;
        for (const platform::ShellRequest& request : fresh.processes().shellRequests()) {
            EXPECT_EQ(kViewer, request.file);
            EXPECT_EQ(kWorkDir, request.directory);
            started.push_back(request.parameters);
        }
        EXPECT_EQ(c.started, started);
    }
}

TEST_F(LaunchRunTest, LaunchModesWaitPauseOrStopAsTheySay) {
    struct Case {
        const char* what;
        int32_t mode;
        bool firstFails;
        size_t shellStarts, processStarts;
        uint32_t shellMask;  // of the shell starts
        uint64_t slept;      // 300 of it is the line's wait time
    };
    const Case cases[] = {
        {"shell, no wait", 0, false, 2, 0, 512, 300},
        {"shell, waiting", 1, false, 2, 0, 768, 300},
        {"shell, 200 ms behind each", 2, false, 2, 0, 768, 700},
        {"shell, 500 ms behind each", 3, false, 2, 0, 768, 1300},
        {"one after another", 5, false, 0, 2, 0, 300},
        {"one after another, the first fails", 5, true, 0, 1, 0, 300},
        {"an unknown mode starts nothing and still waits", 7, false, 0, 0, 0, 300},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        platform::fake::FakePlatform fresh;
        platform::fake::FakeProgram program;
        program.starts = !c.firstFails;
        fresh.processes().SetProgram(program);
        LaunchRun(kViewer, {L"C:\\a.txt", L"C:\\b.txt"}, kWorkDir, true, L"?selfile?", false,
                  {.mode = c.mode, .show = 1, .timeout = 5000, .waitTime = 300});
        EXPECT_EQ(c.shellStarts, fresh.processes().shellRequests().size());
        for (const platform::ShellRequest& request : fresh.processes().shellRequests()) {
            EXPECT_EQ(c.shellMask, request.mask);
        }
        EXPECT_EQ(c.processStarts, fresh.processes().starts().size());
        EXPECT_EQ(c.slept, fresh.processes().Ticks() - kStartTicks);
    }
}

// The background mode hands a copy to a thread of its own, whose shell starts have no owner.
TEST_F(LaunchRunTest, BackgroundModeStartsFromItsOwnThread) {
    fake.windows().SetMainWindow(0x777);
    LaunchQueue queue;
    queue.Add(4, L"C:\\Tools\\a.exe", L"1", kWorkDir, 1, 0);
    queue.Add(4, L"C:\\Tools\\b.exe", L"2", kWorkDir, 1, 0);
    RunLaunchQueue(queue);
    EXPECT_TRUE(queue.empty());
    ASSERT_EQ(1u, fake.processes().threads().size());
    EXPECT_EQ(std::make_pair(16384u, kBackgroundLaunchExitCode), fake.processes().threads()[0]);
    ASSERT_EQ(2u, fake.processes().shellRequests().size());
    EXPECT_EQ(0u, fake.processes().shellRequests()[0].owner);
    EXPECT_EQ(L"2", fake.processes().shellRequests()[1].parameters);
}

}  // namespace
