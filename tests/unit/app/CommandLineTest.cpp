#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/HostSwitches.h"

namespace {

TEST(CommandLine, LastSwitchAndLastPlainArgumentWin) {
    struct Case {
        std::vector<std::wstring> arguments;
        int switchNumber;
        std::wstring file;
        int effective;
    };
    const Case cases[] = {
        {{}, kSwitchNone, L"", kSwitchNone},
        {{L"/T", L"file"}, kSwitchTerminate, L"file", kSwitchTerminate},
        {{L"/T"}, kSwitchTerminate, L"", kSwitchNone},
        {{L"/E"}, kSwitchExRun, L"", kSwitchNone},
        {{L"/G", L"anything"}, kSwitchG, L"anything", kSwitchG},
        {{L"plain"}, kSwitchNone, L"plain", kSwitchNone},
        {{L"/e", L"file"}, kSwitchExRun, L"file", kSwitchExRun},
        {{L"/E", L"a", L"/R", L"b"}, kSwitchRun, L"b", kSwitchRun},
        {{L"a", L"b", L"/d"}, kSwitchCommands, L"b", kSwitchCommands},
        {{L"/KEYLIST"}, kSwitchKeyList, L"none", kSwitchKeyList},
        {{L"/keylist", L"x"}, kSwitchKeyList, L"x", kSwitchKeyList},
        {{L"x", L"/KeyList"}, kSwitchKeyList, L"none", kSwitchKeyList},
        {{L"/A", L"f.txt"}, kSwitchAuto, L"f.txt", kSwitchAuto},
        {{L"/M", L"m.txt"}, kSwitchMenu, L"m.txt", kSwitchMenu},
        {{L"-E", L"f"}, kSwitchNone, L"f", kSwitchNone},
        {{L"/E ", L"f"}, kSwitchNone, L"f", kSwitchNone},
        {{L"/\u0130", L"f"}, kSwitchNone, L"f", kSwitchNone},
    };
    for (const auto& c : cases) {
        CommandLine line = ParseCommandLine(c.arguments);
        std::string label = testing::PrintToString(c.arguments);
        EXPECT_EQ(c.switchNumber, line.switchNumber) << label;
        EXPECT_EQ(c.file, line.file) << label;
        EXPECT_EQ(c.effective, EffectiveSwitch(line)) << label;
    }
}

TEST(HostSwitches, OnlyExactlyTenFieldsCount) {
    struct Case {
        const wchar_t* text;
        bool valid;
        int32_t mode;
        int32_t reactivate;
        bool share;
    };
    const Case cases[] = {
        {L"", false, 0, 0, false},
        {L"3:1:100:200:4096:0:0:0:Share:x", true, 3, 1, true},
        {L"3:1:100:200:4096:0:0:0:share:x", true, 3, 1, false},
        {L"3:1:100:200:4096:0:0:0:Share", false, 0, 0, false},
        {L"3:1:100:200:4096:0:0:0:Share:x:y", false, 0, 0, false},
        {L"2:0:::::::Share:", true, 2, 0, true},
        {L" 4 :x1:::::::: ", true, 4, 0, false},
        {L"99999999999:-7:::::::Share :", true, 2147483647, -7, false},
        {L":::::::::", true, 0, 0, false},
    };
    for (const auto& c : cases) {
        HostSwitches switches = ParseHostSwitches(c.text);
        std::string label = testing::PrintToString(std::wstring(c.text));
        EXPECT_EQ(c.valid, switches.valid) << label;
        EXPECT_EQ(c.mode, switches.windowMode) << label;
        EXPECT_EQ(c.reactivate, switches.reactivate) << label;
        EXPECT_EQ(c.share, switches.share) << label;
    }
    HostSwitches block = ParseHostSwitches(L"0:0:12:34:2048:5:6:7:Share:9");
    EXPECT_EQ(12, block.blockFirst);
    EXPECT_EQ(34, block.blockSecond);
    EXPECT_EQ(2048, block.blockSize);
}

}  // namespace
