// The user bar page over its real templates and the fakes: the slot editor's refusals, and a slot
// emptied on the user's word.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "app/COptionDlg.h"
#include "ui/ListView.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr int kPage = 11;
constexpr const wchar_t* kEditorTitle = L"ユーザー定義バーの設定";

class UserBarPageTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        DirectWriteInt(kDirectSettingsPath, L"UserDirMode", 2);
        DirectWriteString(kDirectSettingsPath, L"UserDir", L"C:\\User");
        fake_.files().AddDirectory(L"C:\\User\\Bar\\tools");
        fake_.files().AddFile(L"C:\\User\\Bar\\plain.txt", std::string_view("not a folder"));
        fake_.files().AddFile(L"C:\\Msg.txt",
                              Utf16Bytes(L"62315\tEmpty\r\n62569\tMissing\r\n63007\tDelete?\r\n", true));
        app_.messages.SetPath(L"C:\\Msg.txt");
    }
    HWND Open(COptionDlg& dialog) {
        SetStart(kPage);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(kPage) && dialog.Page(kPage)->opened ? dialog.Page(kPage)->hwnd() : nullptr;
    }
    std::vector<std::wstring> Row(const ui::ListView& slots, int row) const {
        return {slots.GetItemText(row, 1), slots.GetItemText(row, 2), slots.GetItemText(row, 3)};
    }
};

// The width's range is the framework's check and comes first; then a name and a folder are needed,
// and the folder must be there under "Bar", though a plain file of the name will do. A refused slot
// keeps the editor open and the row as it was.
TEST_F(UserBarPageTest, TheSlotEditorKeepsOnlyANamedSlotWhoseFolderIsThere) {
    const std::wstring range = L"Please enter an integer between 1 and 500.";
    const std::wstring empty = L"Empty", missing = L"Missing";
    struct Case {
        const wchar_t *name, *dir, *width;
        std::wstring refusal;  // empty: kept
    };
    const Case cases[] = {
        {L"", L"", L"0", range},           {L"Tools", L"tools", L"501", range},   {L"", L"tools", L"100", empty},
        {L"Tools", L"", L"100", empty},    {L"Tools", L"missing", L"7", missing}, {L"Plain", L"plain.txt", L"1", L""},
        {L"Tools", L"tools", L"500", L""},
    };
    COptionDlg dialog(app_);
    HWND page = Open(dialog);
    ASSERT_NE(nullptr, page);
    const ui::ListView slots(GetDlgItem(page, 1601));
    ASSERT_EQ(9, slots.GetItemCount());
    slots.SelectRow(2);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name) + L"|" + c.dir + L"|" + c.width));
        const std::vector<std::wstring> before = Row(slots, 2);
        const size_t shown = fake_.prompts().shown().size();
        WhenShown(kEditorTitle, [&](HWND editor) {
            SetDlgItemTextW(editor, 1001, c.name);
            SetDlgItemTextW(editor, 1002, c.dir);
            SetDlgItemTextW(editor, 1003, c.width);
            Click(editor, IDOK);
            if (fake_.prompts().shown().size() != shown) PostMessageW(editor, WM_COMMAND, IDCANCEL, 0);
        });
        Click(page, 1302);
        std::vector<std::wstring> told;
        for (size_t i = shown; i < fake_.prompts().shown().size(); ++i) told.push_back(fake_.prompts().shown()[i].text);
        const std::vector<std::wstring> typed = {c.name, c.dir, c.width};
        EXPECT_EQ(c.refusal.empty() ? std::vector<std::wstring>() : std::vector{c.refusal}, told);
        EXPECT_EQ(c.refusal.empty() ? typed : before, Row(slots, 2));
    }
    // Deleting asks with the slot's name and folder; No keeps the row, Yes empties it.
    fake_.prompts().Answer(7);
    fake_.prompts().Answer(6);
    Click(page, 1303);
    EXPECT_EQ((std::vector<std::wstring>{L"Tools", L"tools", L"500"}), Row(slots, 2));
    Click(page, 1303);
    EXPECT_EQ(L"Delete?\nTools\ntools", fake_.prompts().shown().back().text);
    EXPECT_EQ((std::vector<std::wstring>{L"", L"", L""}), Row(slots, 2));
}

}  // namespace
