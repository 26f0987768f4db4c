// The preview page in the running program with the sample plug-ins beside it: a plug-in added through
// its editor is registered with its own extensions and the host hears of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include "support/FakeHostProcess.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

constexpr wchar_t kPlugins[] = L"Software\\Tarnwick\\QOR\\Main001\\PvPlugin";
constexpr int kApply = 1301;
constexpr int kList = 1601;
constexpr int kAdd = 1302;
constexpr int kDllName = 1001;

std::wstring Stored(const wchar_t* name) {
    return reg::ReadString(kPlugins, name).value_or(L"<absent>");
}

TEST(PreviewPage, APluginAddedIsRegisteredWithItsOwnExtensions) {
    reg::ScopedKey page(reg::kOptionPage);
    reg::ScopedKey plugins(kPlugins);
    reg::ScopedKey preview(L"Software\\Tarnwick\\QOR\\Main001\\PreView");
    reg::DeleteKey(kPlugins);
    reg::WriteString(kPlugins, L"Dll1", L"Stale.dll");
    reg::WriteDword(reg::kOptionPage, L"Start", 6);
    e2e::OptionBesideHost run;
    auto& [host, option, dialog] = run;
    ASSERT_TRUE(host.Window());
    ASSERT_NE(nullptr, dialog);
    HWND pagePane = e2e::PageWith(dialog, kList);
    ASSERT_NE(nullptr, pagePane);

    PostMessageW(pagePane, WM_COMMAND, MAKEWPARAM(kAdd, BN_CLICKED), 0);
    HWND editor = e2e::FindVisibleWindow(option.Id(), L"プレビュープラグイン");
    ASSERT_NE(nullptr, editor);
    e2e::SetText(editor, kDllName, L"TextPeek.dll");
    e2e::Click(editor, IDOK);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    // The editor goes once its modal loop has ended, which may come after the dialog is idle.
    for (int wait = 0; IsWindow(editor) && wait < 200; ++wait) Sleep(50);
    ASSERT_FALSE(IsWindow(editor));
    e2e::Click(dialog, kApply);
    EXPECT_EQ(L"TextPeek.dll", Stored(L"Dll0"));
    EXPECT_EQ(L"txt,log,ini,csv", Stored(L"Ext0"));
    EXPECT_EQ(L"", Stored(L"Dll1"));
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49003u, 49099u));
    option.CloseDialog(dialog);
}

}  // namespace
