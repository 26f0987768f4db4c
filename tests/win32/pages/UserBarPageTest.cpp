#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "app/COptionDlg.h"
#include "ui/ListView.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;
using UserBarPageTest = OptionDialogFixture;

// The width's range is checked first; the folder must be under "Bar", though a plain file of the name will
// do. A refused slot keeps the editor open and the row as it was; deleting empties the row only on Yes.
TEST_F(UserBarPageTest, TheSlotEditorKeepsOnlyANamedSlotWhoseFolderIsThere) {
    const std::wstring range = L"Please enter an integer between 1 and 500.";
    struct Case {
        const wchar_t *name, *dir, *width;
        std::wstring refusal;  // empty: kept
    };
    const Case cases[] = {
        {L"", L"", L"0", range},
        {L"Tools", L"tools", L"501", range},
        {L"", L"tools", L"100", L"Empty"},
        {L"Tools", L"", L"100", L"Empty"},
        {L"Tools", L"missing", L"7", L"Missing"},
        {L"Plain", L"plain.txt", L"1", L""},
        {L"Tools", L"tools", L"500", L""},
    };
    DirectWriteInt(kDirectSettingsPath, L"UserDirMode", 2);
    DirectWriteString(kDirectSettingsPath, L"UserDir", L"C:\\User");
    fake_.files().AddDirectory(L"C:\\User\\Bar\\tools");
    fake_.files().AddFile(L"C:\\User\\Bar\\plain.txt", std::string_view("not a folder"));
    fake_.files().AddFile(L"C:\\Msg.txt", Utf16Bytes(L"62315\tEmpty\r\n62569\tMissing\r\n63007\tDelete?\r\n", true));
    app_.messages.SetPath(L"C:\\Msg.txt");
    SetStart(11);
    COptionDlg dialog(app_);
    ASSERT_TRUE(dialog.Create(nullptr) && dialog.Page(11)->opened);
    HWND page = dialog.Page(11)->hwnd();
    const ui::ListView slots(GetDlgItem(page, 1601)), clicks(GetDlgItem(page, 1602));
    auto row = [&] { return std::vector{slots.GetItemText(2, 1), slots.GetItemText(2, 2), slots.GetItemText(2, 3)}; };
    EXPECT_EQ((std::vector<std::wstring>{L"左クリック(組み合わせなし)", L"標準の動作(バー毎に定義)"}),
              (std::vector{clicks.GetItemText(4, 0), clicks.GetItemText(4, 1)}));
    slots.SelectRow(2);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name) + L"|" + c.dir + L"|" + c.width));
        const std::vector<std::wstring> before = row(), typed = {c.name, c.dir, c.width};
        const size_t shown = fake_.prompts().shown().size();
        WhenShown(L"ユーザー定義バーの設定", [&](HWND editor) {
            for (int id : {1001, 1002, 1003})
                SetDlgItemTextW(editor, id, typed[static_cast<size_t>(id - 1001)].c_str());
            Click(editor, IDOK);
            if (fake_.prompts().shown().size() != shown) PostMessageW(editor, WM_COMMAND, IDCANCEL, 0);
        });
        Click(page, 1302);
        std::vector<std::wstring> told;
        for (size_t i = shown; i < fake_.prompts().shown().size(); ++i) told.push_back(fake_.prompts().shown()[i].text);
        EXPECT_EQ(c.refusal.empty() ? std::vector<std::wstring>() : std::vector{c.refusal}, told);
        EXPECT_EQ(c.refusal.empty() ? typed : before, row());
    }
    fake_.prompts().Answer(7);
    fake_.prompts().Answer(6);
    Click(page, 1303);
    EXPECT_EQ((std::vector<std::wstring>{L"Tools", L"tools", L"500"}), row());
    Click(page, 1303);
    EXPECT_EQ(L"Delete?\nTools\ntools", fake_.prompts().shown().back().text);
    EXPECT_EQ((std::vector<std::wstring>{L"", L"", L""}), row());
}

}  // namespace
