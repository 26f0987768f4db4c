// The tab pages in the running program: a click command the page does not offer is written back as
// closing the tab, under the name the host reads, and every host hears that the tab settings changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "support/FakeHostProcess.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

const std::wstring kTabStyle = L"Software\\Tarnwick\\Qor\\Main001\\TabStyle";
constexpr int kApply = 1301;

TEST(TabPagesTest, AnUnofferedRightClickCommandIsWrittenAsClosingTheTab) {
    reg::ScopedKey page{reg::kOptionPage};
    reg::ScopedKey tabs{kTabStyle};
    reg::DeleteKey(kTabStyle);
    reg::WriteDword(kTabStyle, L"TabBarClkR", 12345);
    reg::WriteDword(reg::kOptionPage, L"Start", 31);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
    ASSERT_NE(nullptr, dialog);
    ASSERT_NE(nullptr, e2e::PageWith(dialog, 1602));
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49031u, 49099u));
    EXPECT_EQ(35112u, reg::ReadDword(kTabStyle, L"TabBarClkR").value_or(0));
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    option.WaitOrKill();
}

}  // namespace
