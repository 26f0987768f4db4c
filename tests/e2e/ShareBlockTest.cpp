// The block a host fills before it starts Option.exe: read by the program, which leaves a zero
// where each tab was, exactly when the switch string names it with "Share".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/HostHandshake.h"
#include "support/Process.h"

namespace {

TEST(ShareBlock, TheProgramReadsTheBlockItsSwitchStringNames) {
    struct Case {
        const char* what;
        const wchar_t* word;
        bool read;
    };
    const Case cases[] = {
        {"Share", L"Share", true},
        {"share in other case", L"share", false},
        {"another word", L"None", false},
    };
    int second = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::wstring text =
            e2e::ShareBlockText(L"C:\\work", L"-o", {L"C:\\work\\a.txt", L"C:\\work\\b.txt"}, {L"C:\\x"});
        e2e::ShareBlock block(static_cast<int>(GetCurrentProcessId()), ++second, 1024, text);
        ASSERT_TRUE(block.Valid());
        std::wstring switches = e2e::SwitchString(0, 0, static_cast<int>(GetCurrentProcessId()), second, 1024, c.word);

        EXPECT_EQ(0u, e2e::RunOption({L"/T", L"x"}, {e2e::HostSwitch(switches)}));

        std::wstring expected = text;
        if (c.read) std::replace(expected.begin(), expected.end(), L'\t', L'\0');
        EXPECT_EQ(expected, block.Contents().substr(0, text.size()));
    }
}

TEST(ShareBlock, AProgramStartedWithoutAHostBlockGoesOn) {
    // No mapping of this name exists: the program makes a fresh, empty one, reads nothing and ends.
    std::wstring switches = e2e::SwitchString(3, 0, static_cast<int>(GetCurrentProcessId()), 424242, 512);
    EXPECT_EQ(0u, e2e::RunOption({L"/T", L"x"}, {e2e::HostSwitch(switches)}));
}

}  // namespace
