#include <gtest/gtest.h>

#include "app/HostSwitches.h"

namespace {

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
