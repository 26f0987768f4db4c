#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "definitions/CDlgExRunSet.h"
#include "definitions/CDlgRunSet.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;
using platform::fake::ShownMessage;

const std::wstring kScripts = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Script\\";

std::vector<std::wstring> Row(const ui::ListView& list, int row) {
    return {list.GetItemText(row, 0), list.GetItemText(row, 1)};
}

class RunDefinitionDialogsTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.files().AddDirectory(L"C:\\Qor\\Lang");
        fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.txt", Utf16Bytes(L"63017\t%s: no program\r\n", true));
        app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.txt");
        fake_.files().AddDirectory(kScripts);
    }

    std::wstring File(const std::wstring& name) {
        std::vector<uint8_t> bytes;
        fake_.files().ReadFile(kScripts + name, bytes);
        return Utf16Text(bytes);
    }
};

// An open mode out of range is refused until one is chosen; the confirmation's No keeps the file.
TEST_F(RunDefinitionDialogsTest, TheRunEditorShowsTheFileRefusesAnUnknownModeAndSavesAtOK) {
    const std::wstring original =
        L"\uFEFF// mine\r\nRUN = C:\\Qor\\Tools\\x.exe /a=b\r\nopenmode=7\r\n"
        L"MultiCommandMode=1\r\nBootMode=4\r\nbootdir=1\r\n";
    fake_.files().AddFile(kScripts + L"Run.txt", Utf16Bytes(original));
    CDlgRunSet editor(app_);
    editor.filePath = kScripts + L"Run.txt";
    ASSERT_TRUE(editor.Create(nullptr));
    HWND dialog = editor.hwnd();
    EXPECT_EQ(editor.filePath, TextOf(GetDlgItem(dialog, 1401)));
    EXPECT_EQ(L"C:\\Qor\\Tools\\x.exe /a=b", TextOf(GetDlgItem(dialog, 1052)));
    EXPECT_EQ(L"1", TextOf(GetDlgItem(dialog, 1051)));
    EXPECT_EQ((std::vector<LRESULT>{-1, 4, BST_CHECKED, BST_UNCHECKED}),
              (std::vector<LRESULT>{SendDlgItemMessageW(dialog, 1151, CB_GETCURSEL, 0, 0),
                                    SendDlgItemMessageW(dialog, 1152, CB_GETCURSEL, 0, 0),
                                    SendDlgItemMessageW(dialog, 1251, BM_GETCHECK, 0, 0),
                                    SendDlgItemMessageW(dialog, 1252, BM_GETCHECK, 0, 0)}));
    EXPECT_TRUE(fake_.prompts().shown().empty()) << "a program is named: nothing asked";

    Click(dialog, IDOK);
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_NE(std::wstring::npos, fake_.prompts().shown()[0].text.find(L"4")) << fake_.prompts().shown()[0].text;
    EXPECT_EQ(original, File(L"Run.txt"));

    SendDlgItemMessageW(dialog, 1151, CB_SETCURSEL, 2, 0);
    Click(dialog, 1305);
    EXPECT_EQ(L"%App_Dir%Tools\\x.exe /a=b", TextOf(GetDlgItem(dialog, 1052)));
    // Alt+Down in the folder's edit browses for a folder, starting at what the edit holds.
    fake_.prompts().ChooseFolder({true, L"D:\\Work"});
    SendDlgItemMessageW(dialog, 1051, WM_SYSKEYDOWN, VK_DOWN, 1 << 29);
    EXPECT_EQ(L"1", fake_.prompts().browsed().at(0).start);
    // Texts under no root stay as they are.
    Click(dialog, 1303);
    Click(dialog, 1304);
    app_.store.Message = -1;
    fake_.prompts().Answer(platform::kAnswerNo);
    Click(dialog, IDOK);
    EXPECT_EQ(original, File(L"Run.txt")) << "No to the confirmation writes nothing";
    fake_.prompts().Answer(platform::kAnswerYes);
    Click(dialog, IDOK);
    EXPECT_EQ(
        L"\uFEFFCommandlineOption=\r\nOpenMode=2\r\nMultiCommandMode=1\r\nShiftSilentMode=0\r\nBootDir=D:\\Work\r\n"
        L"BootMode=4\r\nRun=%App_Dir%Tools\\x.exe /a=b\r\n",
        File(L"Run.txt"));
}

// No closes the editor unsaved; a file that is not there is told first.
TEST_F(RunDefinitionDialogsTest, ADefinitionWithoutAProgramIsAskedAbout) {
    fake_.files().AddFile(kScripts + L"Empty.txt", Utf16Bytes(L"\uFEFFFilter=txt\r\nRun=\r\n"));
    // clang-format off
    struct Case { bool extension; const wchar_t* file; std::vector<std::wstring> shown; };
    const Case cases[] = {
        {false, L"Empty.txt", {L"Run: no program"}},
        {true, L"Empty.txt", {L"ExRun: no program"}},
        {false, L"None.txt", {L"Cannot open " + kScripts + L"None.txt", L"Run: no program"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        fake_.prompts().Clear();
        fake_.prompts().Answer(platform::kAnswerNo);
        CDlgRunSet run(app_);
        CDlgExRunSet exRun(app_);
        run.filePath = exRun.filePath = kScripts + c.file;
        ui::Dialog& editor = c.extension ? static_cast<ui::Dialog&>(exRun) : run;
        ASSERT_TRUE(editor.Create(nullptr));
        std::vector<std::wstring> shown;
        for (const ShownMessage& message : fake_.prompts().shown()) shown.push_back(message.text);
        EXPECT_EQ(c.shown, shown);
        EXPECT_FALSE(IsWindowVisible(editor.hwnd())) << "closed as cancelled";
    }
}

// Two commands behind one filter are two rows; each row is saved with its own filter line.
TEST_F(RunDefinitionDialogsTest, TheExtensionEditorEditsItsRowsInPlaceAndSavesThemAll) {
    fake_.files().AddFile(
        kScripts + L"Ext.txt",
        Utf16Bytes(L"\uFEFFFilter=txt,log\r\nExRun=a.exe\r\nExRun=b.exe\r\nFilter=\r\nExRun=c.exe\r\n"));
    CDlgExRunSet editor(app_);
    editor.filePath = kScripts + L"Ext.txt";
    ASSERT_TRUE(editor.Create(nullptr));
    HWND dialog = editor.hwnd();
    ui::ListView list(GetDlgItem(dialog, 1601));
    ASSERT_EQ(3, list.GetItemCount());
    EXPECT_EQ((std::vector<std::wstring>{L"txt,log", L"b.exe"}), Row(list, 1));

    list.SelectRow(1);
    EXPECT_EQ(L"txt,log", TextOf(GetDlgItem(dialog, 1001)));
    EXPECT_EQ(L"b.exe", TextOf(GetDlgItem(dialog, 1051)));
    SetDlgItemTextW(dialog, 1001, L"md");
    EXPECT_EQ((std::vector<std::wstring>{L"md", L"b.exe"}), Row(list, 1));

    Click(dialog, 1305);
    ASSERT_EQ(4, list.GetItemCount());
    EXPECT_EQ(3, list.GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED));
    EXPECT_EQ(L"New Command", TextOf(GetDlgItem(dialog, 1051)));
    // A click on the command's browse button: the file chosen goes into the row.
    RECT text{};
    GetClientRect(GetDlgItem(dialog, 1051), &text);
    POINT button{text.right + 3, text.bottom / 2};
    ClientToScreen(GetDlgItem(dialog, 1051), &button);
    fake_.prompts().ChooseFolder({true, L"d.exe|e.exe"});
    SendDlgItemMessageW(dialog, 1051, WM_NCLBUTTONDOWN, HTBORDER, MAKELPARAM(button.x, button.y));
    Click(dialog, 1302);
    Click(dialog, 1302);
    EXPECT_EQ(1, list.GetNextItem(-1, LVNI_FOCUSED));
    Click(dialog, 1303);
    list.SelectRow(0);
    Click(dialog, 1304);
    EXPECT_EQ(3, list.GetItemCount());
    EXPECT_NE(-1, list.GetNextItem(-1, LVNI_SELECTED));
    Click(dialog, IDOK);
    EXPECT_EQ(
        L"\uFEFFCommandLineOption=?SelFile?\r\nMultiCommandMode=0\r\nShiftSilentMode=0\r\nBootDir=\r\n"
        L"BootMode=0\r\nOpenMode=0\r\nFilter=md\r\nExRun=b.exe\r\nFilter=New Extention\r\nExRun=d.exe|e.exe\r\n"
        L"Filter=\r\nExRun=c.exe\r\n",
        File(L"Ext.txt"));
}

// The mode comes from the tool's own key; mode 2 takes a run definition to its editor.
TEST_F(RunDefinitionDialogsTest, TheScriptPageOpensScriptsByItsModeAndStoresIt) {
    fake_.files().AddFile(kScripts + L"Editor.txt", Utf16Bytes(L"\uFEFFRun=notepad.exe\r\n"));
    fake_.files().AddFile(kScripts + L"Mine.txt", Utf16Bytes(L"\uFEFFexec=x\r\n"));
    fake_.files().AddDirectory(kScripts + L"Sub");
    SetStart(21);
    DirectWriteInt(PageKey(), L"ExToolMode", 2);
    COptionDlg dialog(app_);
    ASSERT_TRUE(dialog.Create(nullptr));
    HWND page = dialog.Page(21)->hwnd();
    EXPECT_EQ(2, SendDlgItemMessageW(page, 1151, CB_GETCURSEL, 0, 0));
    // Shown by its own style: the dialog itself is never shown here.
    auto visible = [&](std::initializer_list<int> ids) {
        std::vector<bool> shown;
        for (int id : ids) shown.push_back((GetWindowLongW(GetDlgItem(page, id), GWL_STYLE) & WS_VISIBLE) != 0);
        return shown;
    };
    EXPECT_EQ((std::vector<bool>{true, true, true, false, false, false}),
              visible({1301, 1302, 1303, 1601, 1304, 1305}));

    // The editor opens modally over the page, captioned as the script editor.
    WhenShown(L"スクリプト編集", [](HWND editor) { PostMessageW(editor, WM_COMMAND, IDCANCEL, 0); });
    Click(page, 1301);
    fake_.files().AddFile(kScripts + L"BinEdit.txt", Utf16Bytes(L"\uFEFFExRun=b.exe\r\n"));
    WhenShown(L"拡張子連動コマンド編集", [](HWND editor) { PostMessageW(editor, WM_COMMAND, IDCANCEL, 0); });
    Click(page, 1302);
    Click(page, 1303);
    EXPECT_EQ(L"Cannot open " + kScripts + L"Viewer.txt", fake_.prompts().shown().at(0).text);
    fake_.prompts().Clear();

    Click(page, 1251);
    EXPECT_EQ((std::vector<bool>{false, false, false, true, true, true}),
              visible({1301, 1302, 1303, 1601, 1304, 1305}));
    ui::ListView list(GetDlgItem(page, 1601));
    ASSERT_EQ(3, list.GetItemCount());
    Click(page, 1304);
    EXPECT_EQ((std::vector<ShownMessage>{{MessageCatalog::kMissingText, 0}}), fake_.prompts().shown());
    SendDlgItemMessageW(page, 1151, CB_SETCURSEL, 0, 0);
    list.SelectRow(2);
    Click(page, 1304);
    ASSERT_EQ(1u, fake_.processes().shellRequests().size());
    EXPECT_EQ(kScripts + L"Mine.txt", fake_.processes().shellRequests()[0].file);
    const NMHDR doubleClick{list.hwnd(), 1601, NM_DBLCLK};
    SendMessageW(page, WM_NOTIFY, 1601, reinterpret_cast<LPARAM>(&doubleClick));
    Click(page, 1305);
    ASSERT_EQ(3u, fake_.processes().shellRequests().size());
    EXPECT_EQ(kScripts + L"Mine.txt", fake_.processes().shellRequests()[1].file);
    EXPECT_EQ(kScripts.substr(0, kScripts.size() - 1), fake_.processes().shellRequests()[2].file);
    SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(IDC_OPTION_APPLY, BN_CLICKED), 0);
    EXPECT_EQ(0, DirectReadInt(PageKey(), L"ExToolMode", -1));
}

}  // namespace
