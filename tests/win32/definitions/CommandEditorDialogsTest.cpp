#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "definitions/CDlgDefCmdSet.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;
using platform::fake::ShownMessage;

std::vector<std::wstring> Row(const ui::ListView& list, int row) {
    std::vector<std::wstring> texts;
    for (int column = 0; column < 5; ++column) texts.push_back(list.GetItemText(row, column));
    return texts;
}

using CommandEditorDialogsTest = OptionDialogFixture;

TEST_F(CommandEditorDialogsTest, TheEditorWritesEachChangeIntoItsRowAndSavesAtOk) {
    const std::wstring path = app_.directories.UserDirectory() + L"ScriptCommand.txt";
    const std::vector<uint8_t> before = Utf16Bytes(L"40003\tCS\tNF-\tcmd\tOld\r\n40005\t-F-\ttool\tTool\r\n", true);
    fake_.files().AddFile(path, before);
    CDlgDefCmdSet editor(app_);
    editor.filePath = path;
    ASSERT_TRUE(editor.Create(nullptr));
    HWND dialog = editor.hwnd();
    ui::ListView list(editor.Item(1601));
    ASSERT_EQ(2, list.GetItemCount());
    EXPECT_EQ((std::vector<std::wstring>{L"40005", L"", L"-F-", L"tool", L"Tool"}), Row(list, 1)) << "four fields";
    EXPECT_EQ(L"(40004 - 40500)", TextOf(editor.Item(1402)));
    const std::initializer_list<int> details = {1001, 1301, 1201, 1208, 1251, 1210, 1261};
    EXPECT_EQ(std::vector<bool>(7, false), Enabled(dialog, details));

    list.SelectRow(0);
    EXPECT_EQ((std::vector<bool>{true, true, true, true, true, false, true}), Enabled(dialog, details));
    EXPECT_EQ((std::vector<UINT>{1, 1, 0, 1}),
              (std::vector<UINT>{IsDlgButtonChecked(dialog, 1251), IsDlgButtonChecked(dialog, 1252),
                                 IsDlgButtonChecked(dialog, 1253), IsDlgButtonChecked(dialog, 1208)}));
    // WM_COPY hides the drop flags and leaves them out of the code; selecting the row again shows them off.
    Click(dialog, 1203);
    EXPECT_EQ(L"X", list.GetItemText(0, 1));
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, 1251)));
    list.SelectRow(1);
    list.SelectRow(0);
    EXPECT_EQ(0u, IsDlgButtonChecked(dialog, 1251));
    Click(dialog, 1209);
    Click(dialog, 1211);
    EXPECT_EQ(L"A--", list.GetItemText(0, 2));
    EXPECT_EQ((std::vector<bool>{true, false}), Enabled(dialog, {1212, 1261}));

    // A field that is no number is refused at once and the row keeps its identifier; OK refuses the row.
    SetDlgItemTextW(dialog, 1001, L"12a");
    EXPECT_EQ(L"40003", list.GetItemText(0, 0));
    list.SelectRow(1);
    Click(dialog, IDOK);
    EXPECT_EQ(0, list.GetSelectedRow());
    std::vector<std::wstring> shown;
    for (const ShownMessage& message : fake_.prompts().shown()) shown.push_back(message.text);
    EXPECT_EQ((std::vector<std::wstring>{L"Please enter an integer.", L"Error of ID range!\n40004-40500"}), shown);
    SetDlgItemTextW(dialog, 1001, L"040004");
    SetDlgItemTextW(dialog, 1003, L"Renamed");
    Click(dialog, 1302);
    EXPECT_EQ((std::vector<std::wstring>{L"40006", L"", L"---", L"New command", L"Comment"}), Row(list, 2));
    Click(dialog, 1303);
    EXPECT_EQ(1, list.GetSelectedRow());

    // The question of saving: No keeps the dialog and the file, Yes writes the rows as five fields.
    app_.store.Message = -1;
    app_.messages.SetPath(L"C:\\Msg.txt");
    fake_.files().AddFile(L"C:\\Msg.txt", Utf16Bytes(L"63315\tSave\r\n63316\tSave the file?\r\n", true));
    Click(dialog, IDOK);
    EXPECT_EQ(L"Save", fake_.prompts().shown().back().caption);
    std::vector<uint8_t> saved;
    ASSERT_TRUE(fake_.files().ReadFile(path, saved));
    EXPECT_EQ(before, saved);
    fake_.prompts().Answer(platform::kAnswerYes);
    Click(dialog, IDOK);
    ASSERT_TRUE(fake_.files().ReadFile(path, saved));
    EXPECT_EQ(Utf16Bytes(L"40004\tX\tA--\tcmd\tRenamed\r\n40005\t\t-F-\ttool\tTool\r\n", true), saved);
    EXPECT_FALSE(IsWindowVisible(dialog));
}

}  // namespace
