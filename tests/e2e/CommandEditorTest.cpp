// "/D" on a copy of a sample command list, and the page that opens the same editor in its own mode.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"
#include "support/Screenshot.h"

namespace {

namespace fs = std::filesystem;
namespace reg = e2e::registry;

constexpr wchar_t kEditorTitle[] = L"コマンド定義ファイル編集";
constexpr int kApply = 1301;
constexpr int kList = 1601;
constexpr int kComment = 1003;
constexpr int kDragAndDrop = 1202;
constexpr int kSelectedItems = 1252;
constexpr int kAdd = 1302;
constexpr int kScriptCommands = 1304;

int Rows(HWND editor) {
    return static_cast<int>(SendMessageW(GetDlgItem(editor, kList), LVM_GETITEMCOUNT, 0, 0));
}

class CommandEditorTest : public testing::Test {
protected:
    void SetUp() override {
        user = fs::temp_directory_path() / (L"CommandEditorTest" + std::to_wstring(GetCurrentProcessId()));
        fs::remove_all(user);
        fs::create_directories(user);
        fs::copy(fs::path(e2e::StageRoot()) / L"User", user, fs::copy_options::recursive);
        list = user / L"ScriptCommand.txt";
        reg::WriteDword(reg::kAppInfo, L"Message", 0xFFFFFFFF);
    }
    void TearDown() override { fs::remove_all(user); }

    // Gives the first row the focus as the keyboard would, then edits it and adds a row.
    void Edit(HWND editor) {
        HWND rows = GetDlgItem(editor, kList);
        PostMessageW(rows, WM_KEYDOWN, VK_HOME, 0);
        for (int wait = 0; wait < 500 && SendMessageW(rows, LVM_GETNEXTITEM, -1, LVNI_SELECTED) != 0; ++wait) Sleep(10);
        e2e::SetText(editor, kComment, L"Copy names");
        SendDlgItemMessageW(editor, kDragAndDrop, BM_CLICK, 0, 0);
        SendDlgItemMessageW(editor, kSelectedItems, BM_CLICK, 0, 0);
        e2e::Click(editor, kAdd);
        EXPECT_EQ(4, Rows(editor));
    }

    reg::ScopedKey page_{reg::kOptionPage};
    reg::ScopedKey settings_{reg::kSettings};
    reg::ScopedKey appInfo_{reg::kAppInfo};
    fs::path user;
    fs::path list;
    e2e::Process option;
};

TEST_F(CommandEditorTest, OkWritesTheEditedRows) {
    option = e2e::StartOption({L"/D", list.wstring()});
    HWND editor = e2e::FindVisibleWindow(option.Id(), kEditorTitle);
    ASSERT_NE(nullptr, editor);
    Edit(editor);
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    // The editor has static texts of its own: the question is the other dialog.
    HWND question = e2e::FindWindowOf(option.Id(), [editor](HWND window) {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        return window != editor && IsWindowVisible(window) && std::wstring(name) == L"#32770";
    });
    ASSERT_NE(nullptr, question);
    e2e::Answer(question, IDYES);
    EXPECT_EQ(0u, option.WaitOrKill());
    // The comment line and the end mark of the sample go; every row is written with five fields.
    EXPECT_EQ(
        L"\uFEFF"
        L"40004\tS\tN--\t%Script_dir%CopyNames.txt\tCopy names\r\n"
        L"40005\t\tN-D\t%Script_dir%NewFolderByDate.txt\tNew folder named by date\r\n"
        L"40006\t\tNF-\t%Script_dir%LineCount.txt\tCount lines\r\n"
        L"40007\t\t---\tNew command\tComment\r\n",
        e2e::ReadUtf16File(list.wstring()));
}

TEST_F(CommandEditorTest, ThePageOpensTheEditorWhoseCancelKeepsTheListAndApplyTellsTheHost) {
    reg::WriteDword(reg::kSettings, L"UserDirMode", 2);
    reg::WriteString(reg::kSettings, L"UserDir", user.wstring() + L"\\");
    reg::WriteDword(reg::kOptionPage, L"Start", 23);
    reg::WriteDword(reg::kOptionPage, L"CmdDefMode", 2);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    option = e2e::StartOption();
    HWND dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
    ASSERT_NE(nullptr, dialog);
    HWND page = e2e::PageWith(dialog, kScriptCommands);
    ASSERT_NE(nullptr, page);
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kScriptCommands, BN_CLICKED), 0);
    HWND editor = e2e::FindVisibleWindow(option.Id(), kEditorTitle);
    ASSERT_NE(nullptr, editor);
    EXPECT_NE(std::wstring::npos, e2e::DialogText(editor).find(list.wstring()));
    EXPECT_EQ(3, Rows(editor));
    // A picture of the editor for people to look at.
    e2e::WaitUntilDialogIdle(editor, option.Handle());
    e2e::CaptureWindow(editor, e2e::PicturePath(L"command-editor.bmp"));
    const std::string before = e2e::ReadFileBytes(list.wstring());
    Edit(editor);
    e2e::Answer(editor, IDCANCEL);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    EXPECT_EQ(before, e2e::ReadFileBytes(list.wstring())) << "Cancel keeps the list";

    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49018u, 49099u));
    EXPECT_EQ(2u, reg::ReadDword(reg::kOptionPage, L"CmdDefMode"));
    option.CloseDialog(dialog);
}

}  // namespace
