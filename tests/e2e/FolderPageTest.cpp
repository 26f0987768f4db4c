// The folder settings page in the running program: a rule added through the editor reaches the
// registry as the host reads it, and a folder the host asks for is registered when the dialog opens.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "support/FakeHostProcess.h"
#include "support/HostHandshake.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

constexpr int kApply = 1301;
constexpr int kExactList = 1601;
constexpr int kExactAdd = 1301;
constexpr int kRulePath = 1001;
constexpr wchar_t kEditorTitle[] = L"フォルダー設定";
constexpr wchar_t kFolderInfo[] = L"Software\\Tarnwick\\Qor\\Main001\\FolderInfo";
constexpr wchar_t kFolderInfoEx[] = L"Software\\Tarnwick\\Qor\\Main001\\FolderInfoEx";
constexpr wchar_t kListInit[] = L"Software\\Tarnwick\\Qor\\Main001\\ListInit";
constexpr wchar_t kFields[] = L"0 1 0 04 00 0 00000100 00000000 00000000 00 00\t";

class FolderPageTest : public testing::Test {
protected:
    void SetUp() override {
        reg::DeleteKey(kFolderInfo);
        reg::DeleteKey(kFolderInfoEx);
        reg::DeleteKey(kListInit);
        reg::WriteDword(reg::kOptionPage, L"Start", 36);
    }

    // Types the path into the rule editor now showing and presses its OK.
    bool AnswerEditor(const wchar_t* path) {
        HWND editor = e2e::FindVisibleWindow(option.Id(), kEditorTitle);
        if (!editor) return false;
        e2e::SetText(editor, kRulePath, path);
        return e2e::Answer(editor, IDOK);
    }
    HWND OptionDialog() { return e2e::FindVisibleWindow(option.Id(), L"オプション"); }

    reg::ScopedKey page_{reg::kOptionPage};
    reg::ScopedKey folders_{kFolderInfo};
    reg::ScopedKey patterns_{kFolderInfoEx};
    reg::ScopedKey listInit_{kListInit};
    e2e::Process option;
};

TEST_F(FolderPageTest, AnExactRuleAddedThroughTheEditorIsWhatApplyStores) {
    reg::WriteString(kFolderInfo, L"C:\\Old", std::wstring(kFields) + L"C:\\Old");
    for (int n = 0; n < 3; ++n) {
        reg::WriteString(kFolderInfoEx, L"wp00" + std::to_wstring(n), L"*\\w" + std::to_wstring(n));
        reg::WriteString(kFolderInfoEx, L"ws00" + std::to_wstring(n),
                         std::wstring(kFields) + L"*\\w" + std::to_wstring(n));
    }
    reg::WriteString(kFolderInfoEx, L"wp004", L"*\\older");
    reg::WriteDword(kListInit, L"ViewMode", 6);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = OptionDialog();
    ASSERT_NE(nullptr, dialog);
    HWND page = e2e::PageWith(dialog, kExactList);
    ASSERT_NE(nullptr, page);

    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kExactAdd, BN_CLICKED), 0);
    ASSERT_TRUE(AnswerEditor(L"D:\\Photos"));
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49033u, 49099u));
    option.CloseDialog(dialog);

    EXPECT_EQ(std::wstring(L"0 1 0 06 00 0 00000101 00000000 00000000 00 00\tD:\\Photos"),
              reg::ReadString(kFolderInfo, L"D:\\Photos").value_or(L"<absent>"))
        << "the list's initial view, sorted by the folders-first key";
    EXPECT_EQ(std::wstring(kFields) + L"C:\\Old", reg::ReadString(kFolderInfo, L"C:\\Old").value_or(L"<absent>"));
    EXPECT_EQ(L"", reg::ReadString(kFolderInfoEx, L"wp003").value_or(L"<absent>"));
    EXPECT_EQ(L"", reg::ReadString(kFolderInfoEx, L"ws003").value_or(L"<absent>"));
    EXPECT_EQ(L"*\\older", reg::ReadString(kFolderInfoEx, L"wp004").value_or(L"<absent>"));
}

// The host leaves a state string in SetFolder and starts the program: the editor comes up on it before
// anything else, and once applied the folder is a rule of its own, the request gone.
TEST_F(FolderPageTest, AFolderTheHostAsksForIsRegisteredOnOpening) {
    reg::WriteString(reg::kOptionPage, L"SetFolder", std::wstring(kFields) + L"C:\\Asked");
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    option = e2e::StartOption({}, {e2e::HostSwitch(e2e::SwitchString(0, 0, 0, 0, 0, L"none"))});
    ASSERT_TRUE(option);
    ASSERT_TRUE(AnswerEditor(L"C:\\Asked"));
    HWND dialog = OptionDialog();
    ASSERT_NE(nullptr, dialog);
    e2e::Click(dialog, kApply);
    option.CloseDialog(dialog);
    EXPECT_EQ(L"", reg::ReadString(reg::kOptionPage, L"SetFolder").value_or(L"<absent>"));
    EXPECT_EQ(std::wstring(L"0 1 0 04 00 0 00000100 00000000 00000000 00 00\tC:\\Asked"),
              reg::ReadString(kFolderInfo, L"C:\\Asked").value_or(L"<absent>"));
}

}  // namespace
