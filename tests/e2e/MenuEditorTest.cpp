// The menu editor of "/M" on a sample menu file.
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>

#include "support/Files.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Screenshot.h"

namespace {

namespace fs = std::filesystem;

constexpr int kAdd = 1301;
constexpr int kSave = 1304;
constexpr int kReload = 1309;
constexpr int kLoadTest = 1311;
constexpr int kList = 1601;
constexpr int kKeyword = 1151;
constexpr int kText = 1001;
constexpr int kTarget = 1002;
constexpr wchar_t kSampleMenu[] = L"Main.txt";

// ASCII text as the file's UTF-16LE bytes.
std::string Units(const std::string& text) {
    std::string bytes;
    for (char c : text) bytes += {c, '\0'};
    return bytes;
}

int Rows(HWND editor) {
    return static_cast<int>(SendMessageW(GetDlgItem(editor, kList), LVM_GETITEMCOUNT, 0, 0));
}

class MenuEditorTest : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() / ("MenuEditorTest" + std::to_string(GetCurrentProcessId()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    HWND Open(const fs::path& file) {
        option = e2e::StartOption({L"/M", file.wstring()});
        editor = option ? e2e::FindVisibleWindow(option.Id(), L"Menu Edit") : nullptr;
        return editor;
    }
    // Clicks a button of the editor and gives the message box it shows, with its text.
    std::wstring ClickForMessage(int id) {
        PostMessageW(editor, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
        HWND box = e2e::FindMessageBox(option.Id());
        if (!box) return L"(no message)";
        std::wstring text = e2e::DialogText(box);
        e2e::Answer(box, IDOK);
        return text;
    }
    void Close() {
        PostMessageW(editor, WM_CLOSE, 0, 0);
        option.WaitOrKill();
    }

    fs::path folder;
    e2e::Process option;
    HWND editor = nullptr;
};

TEST_F(MenuEditorTest, AFileInAMissingFolderOpensEmptyAndCannotBeSaved) {
    const fs::path file = folder / L"NoSuchFolder" / kSampleMenu;
    ASSERT_NE(nullptr, Open(file));
    EXPECT_EQ(0, Rows(editor));
    EXPECT_EQ(L"Could not save file.\n" + file.wstring(), ClickForMessage(kSave));
    Close();
    EXPECT_FALSE(fs::exists(file));
}

// The load test shows the popup where the file asks, or refuses a wildcard file.
TEST_F(MenuEditorTest, ALineAddedIsSavedAsTheHostReadsItAndTheLoadTestShowsThePopup) {
    const fs::path file = folder / kSampleMenu;
    fs::copy_file(fs::path(e2e::StageRoot()) / L"User" / L"Menu" / kSampleMenu, file);
    const std::string before = e2e::ReadFileBytes(file.wstring());
    ASSERT_NE(nullptr, Open(file));
    const int lines = Rows(editor);
    EXPECT_GT(lines, 5);

    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(kAdd, BN_CLICKED), 0);
    HWND line = e2e::FindVisibleWindow(option.Id(), L"Menu command");
    ASSERT_NE(nullptr, line);
    e2e::SetText(line, kKeyword, L"menuitem");
    // As when typed: the dialog hears that the box's text changed.
    PostMessageW(line, WM_COMMAND, MAKEWPARAM(kKeyword, CBN_EDITCHANGE), 0);
    e2e::SetText(line, kText, L" Refresh\t");
    e2e::SetText(line, kTarget, L"33301");
    e2e::WaitUntilDialogIdle(line, option.Handle());
    Sleep(100);
    e2e::CaptureWindow(line, e2e::PicturePath(L"menu-command.bmp"));
    e2e::Answer(line, IDOK);
    e2e::WaitUntilDialogIdle(editor, option.Handle());
    EXPECT_EQ(lines + 1, Rows(editor));
    e2e::CaptureWindow(editor, e2e::PicturePath(L"menu-editor.bmp"));

    EXPECT_EQ(L"I have saved the file.\n" + file.wstring(), ClickForMessage(kSave));
    // Nothing was selected: the line went in at the top, the rest is the file as it was.
    EXPECT_EQ("\xFF\xFE" + Units("menuitem\tRefresh\t33301\r\n") + before.substr(2),
              e2e::ReadFileBytes(file.wstring()));

    // The file rewritten and reloaded: the load test shows the popup where the file asks.
    ASSERT_TRUE(e2e::WriteUtf16File(file.wstring(),
                                    L"\xFEFFPOSITION\tDESKTOP\r\nMENUITEM\tRefresh\t33301\r\n"
                                    L"POPUP\tMore\r\n\tSEPARATOR\r\n\tDIRECTORY\tC:\\\r\nEND\r\n"));
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(kReload, BN_CLICKED), 0);
    e2e::WaitUntilDialogIdle(editor, option.Handle());
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(kLoadTest, BN_CLICKED), 0);
    HWND popup = e2e::FindWindowOf(option.Id(), [](HWND window) {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        return IsWindowVisible(window) && std::wstring(name) == L"#32768";
    });
    ASSERT_NE(nullptr, popup);
    RECT shown = {};
    GetWindowRect(popup, &shown);
    RECT desktop = {};
    GetClientRect(GetDesktopWindow(), &desktop);
    EXPECT_EQ(desktop.right / 2, shown.left);
    EXPECT_EQ(desktop.bottom / 2, shown.top);
    // The menu draws itself in its own loop; the screen is read once it has.
    Sleep(300);
    RECT around = {shown.left - 40, shown.top - 20, shown.right + 40, shown.bottom + 20};
    EXPECT_TRUE(e2e::CaptureRect(around, e2e::PicturePath(L"menu-load-test.bmp")));
    PostMessageW(popup, WM_KEYDOWN, VK_ESCAPE, 0);
    e2e::WaitUntilDialogIdle(editor, option.Handle());

    ASSERT_TRUE(e2e::WriteUtf16File(file.wstring(), L"\xFEFFWILDCARD\tFilter\texe;txt\r\n"));
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(kReload, BN_CLICKED), 0);
    EXPECT_EQ(L"Sorry! I cannot create DIRECTORY mode.\nThis menu definition file, please read in Qor.exe.",
              ClickForMessage(kLoadTest));
    Close();
}

}  // namespace
