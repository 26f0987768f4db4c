#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>
#include <tuple>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace fs = std::filesystem;
namespace reg = e2e::registry;

const std::wstring kBar = L"Software\\Tarnwick\\Qor\\Main001\\Bar";
const std::wstring kUBar = L"Software\\Tarnwick\\Qor\\Main001\\UBar";
constexpr int kApply = 1301;
constexpr int kSlots = 1601;
constexpr int kEditSlot = 1302;

TEST(UserBarPageTest, AFolderRegisteredAsTheFirstBarGetsItsIconAndIsStored) {
    const fs::path user = fs::temp_directory_path() / ("UserBarPageTest" + std::to_string(GetCurrentProcessId()));
    fs::remove_all(user);
    fs::create_directories(user / L"Bar" / L"Tools");
    fs::copy(fs::path(e2e::StageRoot()) / L"User", user, fs::copy_options::recursive);
    reg::ScopedKey page{reg::kOptionPage}, settings{reg::kSettings}, bars{kBar}, clicks{kUBar};
    reg::DeleteKey(kBar);
    reg::WriteDword(reg::kSettings, L"UserDirMode", 2);
    reg::WriteString(reg::kSettings, L"UserDir", user.wstring() + L"\\");
    reg::WriteDword(reg::kOptionPage, L"Start", 11);
    e2e::OptionBesideHost run;
    auto& [host, option, dialog] = run;
    ASSERT_TRUE(host.Window());
    ASSERT_NE(nullptr, dialog);
    HWND shown = e2e::PageWith(dialog, kSlots);
    ASSERT_NE(nullptr, shown);
    PostMessageW(GetDlgItem(shown, kSlots), WM_KEYDOWN, VK_HOME, 0);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    PostMessageW(shown, WM_COMMAND, MAKEWPARAM(kEditSlot, BN_CLICKED), 0);
    HWND editor = e2e::FindVisibleWindow(option.Id(), L"ユーザー定義バーの設定");
    ASSERT_NE(nullptr, editor);
    e2e::SetText(editor, 1001, L"道具");
    e2e::SetText(editor, 1002, L"Tools");
    e2e::SetText(editor, 1003, L"120");
    e2e::Answer(editor, IDOK);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49006u, 49099u));
    const std::string icon = e2e::ReadFileBytes((user / L"Bar" / L"Tools.ico").wstring());
    EXPECT_TRUE(!icon.empty() && icon == e2e::ReadFileBytes(e2e::StageRoot() + L"\\InitTemp\\Bar\\Default.ico"));
    EXPECT_EQ(
        std::tuple(std::wstring(L"道具"), std::wstring(L"Tools"), 120u, 2u),
        std::tuple(reg::ReadString(kBar, L"Name_00").value_or(L""), reg::ReadString(kBar, L"Dir_00").value_or(L""),
                   reg::ReadDword(kBar, L"Width_00").value_or(0), reg::ReadDword(kUBar, L"MC").value_or(0)))
        << "the slot, and the clicks stored with the bars";
    option.CloseDialog(dialog);
    fs::remove_all(user);
}

}  // namespace
