#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <tuple>
#include <vector>

#include "bindings/COptionKeySetting.h"
#include "definitions/CDlgMenuCommand.h"
#include "definitions/CDlgMenuEdit.h"
#include "definitions/MacroHelperData.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;
using platform::fake::ShownMessage;

// Handles what the dialogs posted to themselves.
void Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
}

using MenuEditorDialogsTest = OptionDialogFixture;

TEST_F(MenuEditorDialogsTest, ThePageListsTheMenuFolderOpensAFileAndStoresItsMode) {
    constexpr platform::WindowRef kHost = 0x1234;
    fake_.windows().AddHostWindow(kHost);
    const std::wstring folder = app_.directories.UserDirectory() + L"Menu\\";
    fake_.files().AddFile(folder + L"Main.txt", Utf16Bytes(L"Main\tmenu\r\nPOPUP\tA\r\n", true));
    SetStart(22);
    DirectWriteInt(PageKey(), L"MenuDefMode", 1);
    fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.txt", Utf16Bytes(L"62301\tNothing is selected.\r\n", true));
    app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.txt");
    COptionDlg dialog(app_);
    ASSERT_TRUE(dialog.Create(nullptr));
    HWND page = dialog.Page(22)->hwnd();
    ui::ListView list(GetDlgItem(page, 1601));
    ASSERT_EQ(1, list.GetItemCount());
    EXPECT_EQ(L"Main menu", list.GetItemText(0, 1));
    EXPECT_EQ(1, SendDlgItemMessageW(page, 1151, CB_GETCURSEL, 0, 0));

    // Nothing selected: the user is told; then the file by the shell, the folder and the command list.
    SendDlgItemMessageW(page, 1151, CB_SETCURSEL, 0, 0);
    Click(page, 1301);
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_EQ(L"Nothing is selected.", fake_.prompts().shown()[0].text);
    list.SelectRow(0);
    Click(page, 1301);
    Click(page, 1302);
    Click(page, 1303);
    std::vector<std::wstring> opened;
    for (const platform::ShellRequest& request : fake_.processes().shellRequests()) opened.push_back(request.file);
    EXPECT_EQ((std::vector<std::wstring>{folder + L"Main.txt", app_.directories.UserDirectory() + L"Menu",
                                         L"C:\\Qor\\command\\Option\\..\\..\\AllCommand.txt"}),
              opened);
    // Through the user's editor script, which is not there: the runner says so, the shell is not asked.
    SendDlgItemMessageW(page, 1151, CB_SETCURSEL, 1, 0);
    Click(page, 1301);
    EXPECT_EQ(2u, fake_.prompts().shown().size());
    EXPECT_EQ(3u, fake_.processes().shellRequests().size());

    SendDlgItemMessageW(page, 1151, CB_SETCURSEL, 2, 0);
    Apply(dialog);
    EXPECT_EQ(2, DirectReadInt(PageKey(), L"MenuDefMode", -1));
    EXPECT_EQ(std::vector<uint16_t>{49018}, Codes());
}

TEST_F(MenuEditorDialogsTest, TheLineDialogFollowsTheKeywordAndFillsAFileAsAMacroPath) {
    const std::wstring user = app_.directories.UserDirectory();
    CDlgMenuCommand line(app_);
    line.command = L"<Comment>";
    ASSERT_TRUE(line.Create(nullptr));
    HWND dialog = line.hwnd();
    const std::initializer_list<int> controls = {1001, 1002, 1301, 1302, 1303, 1304};
    EXPECT_EQ((std::vector<bool>{true, true, false, false, false, false}), Enabled(dialog, controls));
    EXPECT_EQ(24, SendDlgItemMessageW(dialog, 1151, CB_GETCOUNT, 0, 0));

    // The choice arrives before the box's text changes: the dialog updates itself a message later.
    SendDlgItemMessageW(dialog, 1151, CB_SETCURSEL, 6, 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1151, CBN_SELCHANGE), 0);
    Pump();
    EXPECT_EQ((std::vector<bool>{true, true, false, true, false, true}), Enabled(dialog, controls));
    EXPECT_EQ(std::make_tuple(std::wstring(L"Menu text"), std::wstring(L"File Name"),
                              std::wstring(L"Execute the script file.")),
              std::make_tuple(TextOf(GetDlgItem(dialog, 1401)), TextOf(GetDlgItem(dialog, 1402)),
                              TextOf(GetDlgItem(dialog, 1403))));

    SetDlgItemTextW(dialog, 1001, L"Run");
    SetDlgItemTextW(dialog, 1002, L"%User_dir%Old.txt");
    fake_.prompts().ChooseFolder({true, user + L"Script\\Run.txt"});
    Click(dialog, 1302);
    ASSERT_EQ(1u, fake_.prompts().browsed().size());
    EXPECT_EQ((platform::fake::FolderBrowse{L"File open", user + L"Old.txt"}), fake_.prompts().browsed()[0]);
    EXPECT_EQ(L"%Script_dir%Run.txt", TextOf(GetDlgItem(dialog, 1002)));

    Click(dialog, IDOK);
    EXPECT_EQ(std::make_tuple(std::wstring(L"SCRIPT"), std::wstring(L"Run"), std::wstring(L"%Script_dir%Run.txt")),
              std::make_tuple(line.command, line.text, line.target));
}

// Answers the next modal window titled so by picking its first list row (if asked) and pressing the button.
void AnswerWhenShown(const wchar_t* title, int button, bool pickFirstRow) {
    WhenShown(title, [=](HWND window) {
        if (pickFirstRow) ui::ListView(GetDlgItem(window, 1601)).SelectRow(0);
        Click(window, button);
    });
}

// A macro goes where the caret is, a folder comes back as a macro path, a command goes behind a list.
TEST_F(MenuEditorDialogsTest, TheLineDialogTakesWordsMacrosFoldersAndCommands) {
    app_.dialogLanguage.Load();
    const std::wstring program = app_.directories.ProgramDirectory(), tag = app_.dialogLanguage.tag();
    const std::wstring positions = MacroHelperFilePath(program, tag, 4);
    fake_.files().CreateDirectoryTree(positions.substr(0, positions.rfind(L'\\')));
    fake_.files().AddFile(positions, Utf16Bytes(L"PAERNT\tparent/MAIN\tmain", true));
    fake_.files().AddFile(MacroHelperFilePath(program, tag, 1), Utf16Bytes(L"%Date%\ttoday", true));
    CDlgMenuCommand line(app_);
    line.command = L"POSITION";
    ASSERT_TRUE(line.Create(nullptr));
    HWND dialog = line.hwnd();
    AnswerWhenShown(L"マクロ入力", IDOK, true);
    Click(dialog, 1301);
    EXPECT_EQ(L"PAERNT", TextOf(GetDlgItem(dialog, 1001)));

    SetDlgItemTextW(dialog, 1151, L"DIRECTORY");
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1151, CBN_EDITCHANGE), 0);
    fake_.prompts().ChooseFolder({true, app_.directories.UserDirectory() + L"Menu"});
    Click(dialog, 1301);
    EXPECT_EQ(L"%User_dir%Menu", TextOf(GetDlgItem(dialog, 1001)));
    SendDlgItemMessageW(dialog, 1001, EM_SETSEL, 0, 0);
    AnswerWhenShown(L"マクロ入力", IDOK, true);
    Click(dialog, 1303);
    EXPECT_EQ(L"%Date%%User_dir%Menu", TextOf(GetDlgItem(dialog, 1001)));

    SetDlgItemTextW(dialog, 1151, L"MULTIPLE");
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1151, CBN_EDITCHANGE), 0);
    SetDlgItemTextW(dialog, 1002, L"1");
    AnswerWhenShown(L"機能一覧", IDCANCEL, false);
    Click(dialog, 1302);
    EXPECT_EQ(L"1", TextOf(GetDlgItem(dialog, 1002))) << "a cancelled picker changes nothing";
    COptionKeySetting::ReleaseShared();
}

TEST_F(MenuEditorDialogsTest, TheEditorChecksCopiesAndSavesItsRows) {
    const std::wstring path = app_.directories.UserDirectory() + L"Menu\\Test.txt";
    fake_.files().AddFile(path, Utf16Bytes(L"Test menu\r\nMENUITEM\tGone\t65000\r\nPOSITION\tPARENT\r\n"
                                           L"\r\npopup\tSub\r\n\tSCRIPT\tRun\t%User_dir%None.txt\r\nEnd\r\n",
                                           true));
    CDlgMenuEdit editor(app_);
    editor.filePath = path;
    ASSERT_TRUE(editor.Create(nullptr));
    ui::ListView list(editor.Item(1601));
    ASSERT_EQ(7, list.GetItemCount());

    Click(editor.hwnd(), 1310);
    EXPECT_EQ(
        (std::vector<std::wstring>{L"", L"Cannot get command string.", L"Syntax error(DESKTOP/PAERNT/MOUSE/MAIN)", L"",
                                   L"", L"Not found:" + app_.directories.UserDirectory() + L"None.txt", L""}),
        Column(list.hwnd(), 3));

    // Row 0 goes down and back up, row 1 goes; the SCRIPT row is copied behind itself.
    list.SelectRow(0);
    Click(editor.hwnd(), 1307);
    Click(editor.hwnd(), 1306);
    list.SelectRow(1);
    Click(editor.hwnd(), 1303);
    EXPECT_EQ(1, list.GetSelectedRow());
    list.SelectRow(4);
    Click(editor.hwnd(), 1313);
    Click(editor.hwnd(), 1314);
    Click(editor.hwnd(), 1304);
    std::vector<uint8_t> saved;
    ASSERT_TRUE(fake_.files().ReadFile(path, saved));
    EXPECT_EQ(Utf16Bytes(L"Test menu\r\nPOSITION\tPARENT\r\n\r\npopup\tSub\r\n"
                         L"\tSCRIPT\tRun\t%User_dir%None.txt\r\n\tSCRIPT\tRun\t%User_dir%None.txt\r\nEnd\r\n",
                         true),
              saved);
    EXPECT_EQ((ShownMessage{L"I have saved the file.\n" + path, 0x40}), fake_.prompts().shown().back());

    // A line goes through the line dialog and back as OK left it; F1 opens the manual at its page.
    list.SelectRow(3);
    AnswerWhenShown(L"Menu command", IDOK, false);
    Click(editor.hwnd(), 1302);
    EXPECT_EQ((std::vector<std::wstring>{L"popup", L"Sub", L""}),
              (std::vector<std::wstring>{list.GetItemText(3, 0), list.GetItemText(3, 1), list.GetItemText(3, 2)}));
    SendMessageW(editor.hwnd(), WM_HELP, 0, 0);
    ASSERT_EQ(1u, fake_.processes().shellRequests().size());
    EXPECT_NE(std::wstring::npos, fake_.processes().shellRequests()[0].file.find(L"04.html"));
}

}  // namespace
