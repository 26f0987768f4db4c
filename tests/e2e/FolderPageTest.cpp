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

// Types the path into the rule editor the program shows and presses its OK.
bool AnswerEditor(const e2e::Process& option, const wchar_t* path) {
    HWND editor = e2e::FindVisibleWindow(option.Id(), kEditorTitle);
    if (!editor) return false;
    e2e::SetText(editor, kRulePath, path);
    return e2e::Answer(editor, IDOK);
}

// The editor comes up on the host's SetFolder first; once applied, the new rule has the list's initial view
// and the folders-first key, the request is gone and the pattern rules end with an empty mark.
TEST(FolderPage, AFolderTheHostAsksForAndARuleAddedAreWhatApplyStores) {
    reg::ScopedKey page{reg::kOptionPage}, folders{kFolderInfo}, patterns{kFolderInfoEx}, listInit{kListInit};
    for (const wchar_t* key : {kFolderInfo, kFolderInfoEx, kListInit}) reg::DeleteKey(key);
    reg::WriteDword(reg::kOptionPage, L"Start", 36);
    reg::WriteString(reg::kOptionPage, L"SetFolder", std::wstring(kFields) + L"C:\\Asked");
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
    e2e::Process option = e2e::StartOption({}, {e2e::HostSwitch(e2e::SwitchString(0, 0, 0, 0, 0, L"none"))});
    ASSERT_TRUE(option);
    ASSERT_TRUE(AnswerEditor(option, L"C:\\Asked"));
    HWND dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
    ASSERT_NE(nullptr, dialog);
    HWND shown = e2e::PageWith(dialog, kExactList);
    ASSERT_NE(nullptr, shown);

    PostMessageW(shown, WM_COMMAND, MAKEWPARAM(kExactAdd, BN_CLICKED), 0);
    ASSERT_TRUE(AnswerEditor(option, L"D:\\Photos"));
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49033u, 49099u));
    option.CloseDialog(dialog);

    EXPECT_EQ(L"", reg::ReadString(reg::kOptionPage, L"SetFolder").value_or(L"<absent>"));
    EXPECT_EQ(std::wstring(L"0 1 0 04 00 0 00000100 00000000 00000000 00 00\tC:\\Asked"),
              reg::ReadString(kFolderInfo, L"C:\\Asked").value_or(L"<absent>"));
    EXPECT_EQ(std::wstring(L"0 1 0 06 00 0 00000101 00000000 00000000 00 00\tD:\\Photos"),
              reg::ReadString(kFolderInfo, L"D:\\Photos").value_or(L"<absent>"));
    EXPECT_EQ(std::wstring(kFields) + L"C:\\Old", reg::ReadString(kFolderInfo, L"C:\\Old").value_or(L"<absent>"));
    EXPECT_EQ(L"", reg::ReadString(kFolderInfoEx, L"wp003").value_or(L"<absent>"));
    EXPECT_EQ(L"", reg::ReadString(kFolderInfoEx, L"ws003").value_or(L"<absent>"));
    EXPECT_EQ(L"*\\older", reg::ReadString(kFolderInfoEx, L"wp004").value_or(L"<absent>"));
}

}  // namespace
