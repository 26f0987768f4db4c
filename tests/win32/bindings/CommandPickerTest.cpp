// The command picker with its real template, over a fake language library and fake files.
#include <gtest/gtest.h>
#include <windows.h>

#include "bindings/COptionKeySetting.h"
#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyListCsv.h"
#include "bindings/KeyTableFiles.h"
#include "ui/ListView.h"
#include "resources/bindings/BindingIds.h"
#include "win32/support/OptionDialogFixture.h"
#include "unit/Utf16.h"

namespace {

using namespace optiontest;
using platform::MenuItem;
using platform::fake::ShownMessage;

constexpr const wchar_t* kLibrary = L"C:\\Qor\\Lang\\Qor.ja-JP.dll";

class CommandPickerTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        platform::fake::LibraryContent content;
        content.menus[130] = {{0, L"ファイル(&F)", false, true, {{32800, L"開く(&O)...", false, false, {}}}}};
        content.menus[501] = {{0, L"表示", false, true, {{32811, L"詳細", false, false, {}}}}};
        content.strings = {{32800, L"ファイルを開く\nTip"}, {32811, L"詳細表示"}};
        fake_.system().AddLibrary(kLibrary, content);
        app_.resourceModule = fake_.system().LoadDataLibrary(kLibrary);
        fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.ja-JP.txt",
                              Utf16Bytes(L"62301\t項目が選択されていません\r\n", true));
        app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.ja-JP.txt");
    }

    static std::wstring Text(HWND dialog, int id) { return TextOf(GetDlgItem(dialog, id)); }
    static std::wstring Selected(HWND dialog) {
        ui::TreeView tree(GetDlgItem(dialog, IDC_KEY_SETTING_TREE));
        HTREEITEM item = tree.GetSelectedItem();
        return item ? tree.GetItemText(item) : L"<none>";
    }
};

// OK gives the number and the tree's text of the command found.
TEST_F(CommandPickerTest, OkNeedsACommandAndSearchFindsOneByNumber) {
    COptionKeySetting& picker = COptionKeySetting::Shared(app_);
    EXPECT_EQ(&picker, &COptionKeySetting::Shared(app_)) << "one picker for the process";
    picker.currentId = 0;
    std::vector<std::wstring> seen;
    INT_PTR result =
        RunModal(picker, {
                             [&](HWND dialog) {
                                 seen.push_back(Selected(dialog));
                                 Click(dialog, IDOK);
                             },
                             [&](HWND dialog) {
                                 SetDlgItemTextW(dialog, IDC_KEY_SETTING_ID, L"32811");
                                 Click(dialog, IDC_KEY_SETTING_SEARCH);
                                 seen.push_back(Selected(dialog) + L" / " + Text(dialog, IDC_KEY_SETTING_TEXT));
                                 Click(dialog, IDOK);
                             },
                         });
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ((std::vector<std::wstring>{L"<none>", L"詳細 / 詳細表示"}), seen);
    EXPECT_EQ((std::vector<ShownMessage>{{L"項目が選択されていません", 0}}), fake_.prompts().shown());
    EXPECT_EQ(32811u, picker.currentId);
    EXPECT_EQ(L"詳細", picker.resultText);

    // Opened again on that command, it is selected at once; with Ctrl held the tree is dumped as text.
    fake_.windows().SetKeyDown(VK_CONTROL, true);
    RunModal(picker, {[&](HWND dialog) {
                 seen.push_back(Selected(dialog));
                 Click(dialog, IDCANCEL);
             }});
    EXPECT_EQ(L"詳細", seen.back());
    std::vector<uint8_t> dump;
    ASSERT_TRUE(fake_.files().ReadFile(L"C:\\Qor\\AllCommand.txt", dump));
    const std::vector<uint8_t> rows = Utf16Bytes(L"32800\t開く(O)\tファイルを開く\r\n32811\t詳細\t詳細表示\r\n", true);
    ASSERT_GT(dump.size(), rows.size());
    EXPECT_EQ(rows, std::vector<uint8_t>(dump.begin(), dump.begin() + rows.size())) << "then the numbered groups";
    COptionKeySetting::ReleaseShared();
}

// Edit and Clear want a row, Clear and each reset ask first and a No changes nothing; the list is named by
// its block.
TEST_F(CommandPickerTest, TheKeyPageClearsResetsAndListsTheBlockShown) {
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 2);
    ASSERT_NE(nullptr, page);
    ui::ListView list(GetDlgItem(page, IDC_KEYSET_LIST));
    SendDlgItemMessageW(page, IDC_KEYSET_MODIFIER_FIRST + kModifierShift, BM_CLICK, 0, 0);
    // The first key that Shift binds by default.
    int key = 0;
    while (key < 75 && DefaultKeyTables().Word(0, kModifierShift, key) == 0) ++key;
    const uint16_t bound = DefaultKeyTables().Word(0, kModifierShift, key);
    ASSERT_NE(0, bound);
    const auto shown = [&] { return static_cast<uint16_t>(list.GetItemData(key)); };
    EXPECT_EQ(bound, shown());

    Click(page, IDC_KEYSET_EDIT);
    Click(page, IDC_KEYSET_CLEAR);
    EXPECT_EQ(2u, fake_.prompts().shown().size()) << "nothing selected, twice";
    list.SelectRow(key);
    Click(page, IDC_KEYSET_CLEAR);  // answered No
    EXPECT_EQ(bound, shown());
    fake_.prompts().Answer(platform::kAnswerYes);
    Click(page, IDC_KEYSET_CLEAR);
    EXPECT_EQ(0, shown());
    for (int reset : {IDC_KEYSET_RESET_BLOCK, IDC_KEYSET_RESET_ALL}) Click(page, reset);  // both No
    EXPECT_EQ(0, shown());
    for (int reset : {IDC_KEYSET_RESET_KEY, IDC_KEYSET_RESET_BLOCK, IDC_KEYSET_RESET_ALL}) {
        fake_.prompts().Answer(platform::kAnswerYes);
        Click(page, reset);
        EXPECT_EQ(bound, shown()) << reset;
        fake_.prompts().Answer(platform::kAnswerYes);
        Click(page, IDC_KEYSET_CLEAR);
    }

    fake_.files().AddDirectory(L"D:\\Lists");
    fake_.prompts().ChooseFolder({true, L"D:\\Lists"});
    Click(page, IDC_KEYSET_SAVE_LIST);
    std::vector<uint8_t> written;
    EXPECT_TRUE(fake_.files().ReadFile(L"D:\\Lists\\" + PageKeyListName(0, kModifierShift), written));
}

}  // namespace
