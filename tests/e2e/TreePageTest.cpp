// The folder tree page in the running program: thirty roots, known folders and real folders alike,
// come back from Apply as they were, with the end mark after them, and every host hears that the tree
// changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

const std::wstring kTreeInfo = L"Software\\Tarnwick\\Qor\\Main001\\TreeInfo";
constexpr int kApply = 1301;

TEST(TreePageTest, ThirtyRootsAppliedUnchangedAreWrittenBackWithTheEndMark) {
    reg::ScopedKey page{reg::kOptionPage};
    reg::ScopedKey tree{kTreeInfo};
    reg::DeleteKey(kTreeInfo);
    std::vector<std::wstring> roots;
    for (int n = 0; n < 15; ++n) {
        roots.push_back(L"B4BFCC3A-DB2C-424C-B029-7FE99A87C641");
        roots.push_back(n % 2 ? L"C:\\windows" : L"C:\\windows\\system32");
    }
    for (size_t n = 0; n < roots.size(); ++n) reg::WriteString(kTreeInfo, L"TopNode" + std::to_wstring(n), roots[n]);
    reg::WriteString(kTreeInfo, L"TopNode30", L"C:\\windows\\fonts");
    reg::WriteDword(reg::kOptionPage, L"Start", 10);
    e2e::OptionBesideHost run;
    auto& [host, option, dialog] = run;
    ASSERT_TRUE(host.Window());
    ASSERT_NE(nullptr, dialog);
    ASSERT_NE(nullptr, e2e::PageWith(dialog, 1603));
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49007u, 49099u));
    std::vector<std::wstring> written;
    for (size_t n = 0; n <= roots.size(); ++n)
        written.push_back(reg::ReadString(kTreeInfo, L"TopNode" + std::to_wstring(n)).value_or(L"<absent>"));
    roots.push_back(L"");
    EXPECT_EQ(roots, written);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    option.WaitOrKill();
}

}  // namespace
