// The folder settings page and its rule editor over their real templates, and the detail columns of the real shell.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pages/CDetailData.h"
#include "pages/CDlgFolderSettingInfo.h"
#include "pages/FolderState.h"
#include "platform/win32/Win32ShellNamespace.h"
#include "ui/ListView.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kEditorTitle = L"フォルダー設定";
constexpr const wchar_t* kFolderInfo = L"Software\\Tarnwick\\QOR\\Main001\\FolderInfo";
constexpr const wchar_t* kFolderInfoEx = L"Software\\Tarnwick\\QOR\\Main001\\FolderInfoEx";
constexpr const wchar_t* kListInit = L"Software\\Tarnwick\\QOR\\Main001\\ListInit";

class FolderSettingPageTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.txt", Utf16Bytes(L"62301\tNone\r\n62302\tEmpty\r\n62307\tListed\r\n"
                                                                    L"62316\tFull\r\n63014\tReplace?\r\n",
                                                                    true));
        app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.txt");
    }
    // Answers the next rule editor with the path typed into it, or cancels it when path is null.
    static void EditorAnswers(const wchar_t* path) {
        WhenShown(kEditorTitle, [path](HWND editor) {
            if (!path) return Click(editor, IDCANCEL);
            SetDlgItemTextW(editor, IDC_FOLDER_RULE_PATH, path);
            Click(editor, IDOK);
        });
    }
};

// The host's defaults when "Detail" is empty; a virtual folder shows by the name the shell gives it.
TEST_F(FolderSettingPageTest, TheRealShellGivesTheDetailColumns) {
    CoInitialize(nullptr);
    platform::win32::Win32ShellNamespace shell;
    const std::vector<platform::ShellColumn> columns = shell.DesktopColumns();
    ASSERT_GE(columns.size(), 4u);
    EXPECT_FALSE(columns[0].title.empty());
    fake_.shell().columns = columns;
    CDetailData details;
    details.Load(app_.store);
    ASSERT_EQ(columns.size(), details.records().size());
    for (size_t n = 0; n < columns.size(); ++n) {
        const DetailColumn& record = details.records()[n];
        EXPECT_EQ((DetailColumn{n < 4 ? 1 : 0, columns[n].charWidth * 6, static_cast<int32_t>(n)}), record) << n;
    }
    const std::wstring computer = L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
    EXPECT_NE(computer, shell.InFolderName(computer).value_or(computer));
    CoUninitialize();
}

// The rule's key is selected and the kind locked as asked; an empty path keeps the dialog; 8 is saved as 5.
TEST_F(FolderSettingPageTest, TheEditorGroupsTheSortKeysAndGivesBackTheRule) {
    DirectWriteInt(L"Software\\Tarnwick\\QOR\\Main001\\Detail", L"Col01", 0);
    CDlgFolderSettingInfo editor(app_);
    editor.rule = {.viewNumber = 8, .sortKey = -9, .path = L""};
    editor.kind = 1;
    editor.locked = 1;
    std::vector<LPARAM> keys;
    std::vector<std::wstring> labels;
    LPARAM selectedKey = 0;
    bool kindEnabled = true;
    const INT_PTR result =
        RunModal(editor, {
                             [&](HWND dialog) {
                                 const ui::ListView list(GetDlgItem(dialog, IDC_FOLDER_RULE_SORT_LIST));
                                 for (int row = 0; row < list.GetItemCount(); ++row)
                                     keys.push_back(list.GetItemData(row));
                                 labels = Column(list.hwnd(), 0);
                                 selectedKey = list.GetItemData(list.GetSelectedRow());
                                 kindEnabled = IsWindowEnabled(GetDlgItem(dialog, IDC_FOLDER_RULE_KIND + 1));
                                 Click(dialog, IDOK);
                             },
                             [&](HWND dialog) {
                                 ui::ListView(GetDlgItem(dialog, IDC_FOLDER_RULE_SORT_LIST)).SelectRow(1);
                                 SetDlgItemTextW(dialog, IDC_FOLDER_RULE_PATH, L"*\\Music");
                                 Click(dialog, IDOK);
                             },
                         });
    EXPECT_EQ(IDOK, result);
    // Wine's list view has no group view: the rows stand in the order of their groups all the same.
    ASSERT_GE(keys.size(), 16u) << "the built-in keys and the shell's columns";
    EXPECT_EQ((std::vector<LPARAM>{-1, -10, -2, -3, -4, -5, -6, -7, -8, -11, -12, -9, 0}),
              std::vector<LPARAM>(keys.begin(), keys.begin() + 13));
    EXPECT_GT(std::find(keys.begin(), keys.end(), 1), std::find(keys.begin(), keys.end(), 3))
        << "the size column, switched off, comes after the shown ones";
    EXPECT_EQ((std::vector<std::wstring>{L"文字コード", L"名前(高速)"}),
              std::vector<std::wstring>(labels.begin(), labels.begin() + 2));
    EXPECT_EQ(-9, selectedKey);
    EXPECT_FALSE(kindEnabled);
    EXPECT_EQ(std::vector<std::wstring>{L"Empty"}, Messages());
    EXPECT_EQ((FolderState{.viewNumber = 5, .sortKey = -10, .path = L"*\\Music"}), editor.rule);
    EXPECT_EQ(1, editor.kind);
}

// A duplicate is replaced only on Yes, a change that would duplicate refused; without a selection, a message.
TEST_F(FolderSettingPageTest, TheButtonsEditTheListsWithinTheirLimits) {
    DirectWriteString(kFolderInfo, L"C:\\Work", BuildFolderState({.path = L"C:\\Work"}));
    for (int n = 0; n < 10; ++n) {
        DirectWriteString(kFolderInfoEx, L"rp00" + std::to_wstring(n), L"r");
        DirectWriteString(kFolderInfoEx, L"rs00" + std::to_wstring(n),
                          BuildFolderState({.path = L"^r" + std::to_wstring(n)}));
    }
    DirectWriteInt(L"Software\\Tarnwick\\QOR\\Main001\\ListInit", L"AdvancedFoler", 0);
    COptionDlg dialog(app_);
    const HWND page = Open(dialog, 36);
    ASSERT_NE(nullptr, page);
    const HWND exact = GetDlgItem(page, IDC_FOLDER_EXACT_LIST), regex = GetDlgItem(page, IDC_FOLDER_REGEX_LIST);

    Click(page, IDC_FOLDER_REGEX_ADD);
    Click(page, IDC_FOLDER_EXACT_CHANGE);
    EXPECT_EQ((std::vector<std::wstring>{L"Full", L"None"}), Messages());

    fake_.prompts().Answer(platform::kAnswerNo);
    EditorAnswers(L"c:\\work");
    Click(page, IDC_FOLDER_EXACT_ADD);
    EXPECT_EQ(L"Listed\nReplace?", Messages().back());
    EXPECT_EQ(std::vector<std::wstring>{L"C:\\Work"}, Column(exact, 1));
    fake_.prompts().Answer(platform::kAnswerYes);
    EditorAnswers(L"c:\\work");
    Click(page, IDC_FOLDER_EXACT_ADD);
    EXPECT_EQ(std::vector<std::wstring>{L"c:\\work"}, Column(exact, 1));
    EditorAnswers(L"D:\\Other");
    Click(page, IDC_FOLDER_EXACT_ADD);
    EditorAnswers(L"C:\\WORK");
    Click(page, IDC_FOLDER_EXACT_CHANGE);
    EXPECT_EQ(L"Listed", Messages().back());
    EXPECT_EQ((std::vector<std::wstring>{L"c:\\work", L"D:\\Other"}), Column(exact, 1));

    ui::ListView(regex).SelectRow(9);
    Click(page, IDC_FOLDER_REGEX_UP);
    Click(page, IDC_FOLDER_REGEX_DELETE);
    EXPECT_EQ((std::vector<std::wstring>{L"^r0", L"^r1", L"^r2", L"^r3", L"^r4", L"^r5", L"^r6", L"^r7", L"^r8"}),
              Column(regex, 0));
    EXPECT_EQ(8, ui::ListView(regex).GetSelectedRow()) << "the last removed, the one before it is next";
}

// Views as the rule editor shows them; with no row focused Apply keeps the stored order, even of a column the
// shell no longer gives. The tree's width is read with the group and never written.
TEST_F(FolderSettingPageTest, TheListsInitialPageMapsTheViewAndTakesTheFocusedOrder) {
    constexpr LPARAM kNone = 1000;
    // clang-format off
    struct Case { int32_t view, sort; int shown; LPARAM selected; int clicked; LPARAM focused; int32_t savedView,
                  savedSort; };
    const Case cases[] = {
        {8, -9, IDC_LIST_INIT_VIEW_TILES,   -9,    0,                             kNone, 5, -9},
        {3,  7, IDC_LIST_INIT_VIEW_LIST,    kNone, 0,                             kNone, 1,  7},
        {4,  7, IDC_LIST_INIT_VIEW_DETAILS, kNone, IDC_LIST_INIT_VIEW_ICONS_ONLY, -5,    7, -5},
        {0,  2, IDC_LIST_INIT_VIEW_ICONS,   2,     IDC_LIST_INIT_VIEW,            1,     2,  1},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "view " << c.view << ", sort " << c.sort);
        DirectWriteInt(kListInit, L"ViewMode", c.view);
        DirectWriteInt(kListInit, L"SortMode", c.sort);
        COptionDlg dialog(app_);
        const HWND page = Open(dialog, 35);
        ASSERT_NE(nullptr, page);
        EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, c.shown));
        const ui::ListView list(GetDlgItem(page, IDC_LIST_INIT_SORT_LIST));
        const int selected = list.GetSelectedRow();
        EXPECT_EQ(c.selected, selected < 0 ? kNone : list.GetItemData(selected));
        if (c.clicked) Click(page, c.clicked);
        for (int row = 0; row < list.GetItemCount(); ++row) {
            if (list.GetItemData(row) == c.focused) list.SelectRow(row);
        }
        SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(IDC_OPTION_APPLY, BN_CLICKED), 0);
        EXPECT_EQ(c.savedView, DirectReadInt(kListInit, L"ViewMode", -100));
        EXPECT_EQ(c.savedSort, DirectReadInt(kListInit, L"SortMode", -100));
        EXPECT_EQ(-1, DirectReadInt(L"Software\\Tarnwick\\QOR\\Main001\\TreeInfo", L"InsideTreeWidth", -1));
    }
}

}  // namespace
