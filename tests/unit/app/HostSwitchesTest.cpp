#include <gtest/gtest.h>

#include <tuple>

#include "app/HostSwitches.h"

namespace {

TEST(HostSwitches, OnlyExactlyTenFieldsCount) {
    // clang-format off
    struct Case { const wchar_t* text; bool valid; int32_t mode; int32_t reactivate; bool share; };
    const Case cases[] = {
        {L"", false, 0, 0, false}, {L"3:1:100:200:4096:0:0:0:Share:x", true, 3, 1, true},
        {L"3:1:100:200:4096:0:0:0:share:x", true, 3, 1, false}, {L"3:1:100:200:4096:0:0:0:Share", false, 0, 0, false},
        {L"3:1:100:200:4096:0:0:0:Share:x:y", false, 0, 0, false}, {L"2:0:::::::Share:", true, 2, 0, true},
        {L" 4 :x1:::::::: ", true, 4, 0, false}, {L"99999999999:-7:::::::Share :", true, 2147483647, -7, false},
        {L":::::::::", true, 0, 0, false},
    };
    // clang-format on
    for (const auto& c : cases) {
        HostSwitches s = ParseHostSwitches(c.text);
        EXPECT_EQ(std::tuple(c.valid, c.mode, c.reactivate, c.share),
                  std::tuple(s.valid, s.windowMode, s.reactivate, s.share))
            << testing::PrintToString(std::wstring(c.text));
    }
    HostSwitches block = ParseHostSwitches(L"0:0:12:34:2048:5:6:7:Share:9");
    EXPECT_EQ(std::tuple(12, 34, 2048), std::tuple(block.blockFirst, block.blockSecond, block.blockSize));
}

}  // namespace
