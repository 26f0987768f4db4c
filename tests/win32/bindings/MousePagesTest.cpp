#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "app/COptionDlg.h"
#include "ui/ComboBox.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kListMouse = L"Software\\Tarnwick\\QOR\\Main001\\ListMouse";
constexpr const wchar_t* kMouse = L"Software\\Tarnwick\\QOR\\Main001\\Mouse";
constexpr const wchar_t* kGesture = L"Software\\Tarnwick\\QOR\\Main001\\Gesture";

using MousePagesTest = OptionDialogFixture;

TEST_F(MousePagesTest, ClickActionsAreChosenSwappedAndStoredAndAnUnknownOneKeepsThePageOut) {
    {
        // The blank area's scripts keep only the chosen file's name; a cancelled box changes nothing.
        COptionDlg dialog(app_);
        HWND page = Open(dialog, 42);
        ASSERT_NE(nullptr, page);
        fake_.prompts().ChooseFolder({true, L"D:\\Elsewhere\\Up.txt"});
        Click(page, 1303);
        Click(page, 1304);
        EXPECT_EQ(L"Up.txt", TextOf(GetDlgItem(page, 1003)));
        EXPECT_EQ(L"", TextOf(GetDlgItem(page, 1004)));
        EXPECT_EQ(app_.directories.UserDirectory() + L"Script\\", fake_.prompts().browsed().back().start);
    }
    {
        DirectWriteInt(kListMouse, L"L", 25);
        COptionDlg dialog(app_);
        EXPECT_EQ(nullptr, Open(dialog, 4));
        EXPECT_EQ(std::vector<std::wstring>{}, Messages());
    }
    DirectWriteInt(kListMouse, L"L", 0);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 4);
    ASSERT_NE(nullptr, page);
    const std::vector<std::wstring> rows = Column(GetDlgItem(page, 1601), 0);
    ASSERT_EQ(12u, rows.size());
    EXPECT_EQ(L"ダブルクリック(組み合わせなし)", rows[0]);
    EXPECT_EQ(L"中クリック+Ctrl+Shift", rows[11]);
    EXPECT_EQ(L"フォルダーは移動・ファイルはシェル起動", Column(GetDlgItem(page, 1601), 1)[0]);
    Click(page, 1301);
    EXPECT_EQ(L"シェル起動", Column(GetDlgItem(page, 1601), 1)[0]);
    EXPECT_EQ(L"フォルダーは新しいタブで開く・ファイルはシェル起動", Column(GetDlgItem(page, 1601), 1)[5]);
    ui::ListView(GetDlgItem(page, 1601)).SelectRow(11);
    WhenShown(L"操作の選択", [](HWND chooser) {
        ui::ComboBox(GetDlgItem(chooser, 1151)).SetCurSel(4);
        Click(chooser, IDOK);
    });
    Click(page, 1304);
    EXPECT_EQ(L"未設定", Column(GetDlgItem(page, 1601), 1)[11]);
    Apply(dialog);
    EXPECT_EQ((std::vector<int32_t>{0, 4, 1, 2, 4}),
              (std::vector<int32_t>{DirectReadInt(kListMouse, L"En", -1), DirectReadInt(kListMouse, L"EnCS", -1),
                                    DirectReadInt(kListMouse, L"L", -1), DirectReadInt(kListMouse, L"LC", -1),
                                    DirectReadInt(kListMouse, L"MCS", -1)}));
}

// Keeping a row's own trail is no duplicate; taking another row's is refused with the old trail back.
TEST_F(MousePagesTest, GestureRowsKeepTheirTrailsUniqueAndTheDefaultsReplaceThem) {
    fake_.files().AddFile(L"C:\\Msg.txt",
                          Utf16Bytes(L"62301\tnone\r\n62307\ttaken\r\n63014\treplace?\r\n63019\treset?", true));
    app_.messages.SetPath(L"C:\\Msg.txt");
    DirectWriteInt(kMouse, L"Gesture", 1);
    DirectWriteInt(kGesture, L"U", 1);
    DirectWriteInt(kGesture, L"D", 2);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 14);
    ASSERT_NE(nullptr, page);
    EXPECT_EQ((std::vector<std::wstring>{L"\u2191", L"\u2193"}), Column(GetDlgItem(page, 1601), 0));
    Click(page, 1304);
    Click(page, 1303);
    EXPECT_EQ((std::vector<std::wstring>{L"none", L"none"}), Messages());
    const ui::ListView list(GetDlgItem(page, 1601));
    list.SelectRow(0);
    WhenShown(L"マウスジェスチャ", [](HWND trail) { Click(trail, IDOK); });
    Click(page, 1303);
    EXPECT_EQ(L"\u2191", list.GetItemText(0, 0));
    EXPECT_EQ((std::vector<std::wstring>{L"none", L"none"}), Messages()) << "its own trail kept";
    WhenShown(L"マウスジェスチャ", [](HWND trail) {
        Click(trail, 1306);
        Click(trail, 1304);
        Click(trail, IDOK);
    });
    Click(page, 1303);
    EXPECT_EQ(L"\u2191", list.GetItemText(0, 0));
    EXPECT_EQ((std::vector<std::wstring>{L"none", L"none", L"taken"}), Messages());
    WhenShown(L"マウスジェスチャ", [](HWND trail) {
        Click(trail, 1303);
        Click(trail, IDOK);
    });
    const NMHDR doubleClick{list.hwnd(), 1601, NM_DBLCLK};
    SendMessageW(page, WM_NOTIFY, 1601, reinterpret_cast<LPARAM>(&doubleClick));
    EXPECT_EQ(L"\u2191\u2192", list.GetItemText(0, 0));
    WhenShown(L"マウスジェスチャ", [](HWND trail) {
        Click(trail, 1306);
        Click(trail, IDCANCEL);
    });
    Click(page, 1303);
    EXPECT_EQ(L"\u2191\u2192", list.GetItemText(0, 0)) << "cancelled";
    fake_.prompts().ChooseColourNext(0x00FF00);
    Click(page, 1101);
    Click(page, 1301);
    EXPECT_EQ(2, list.GetItemCount()) << "the reset answered No";

    fake_.prompts().Answer(platform::kAnswerYes);
    Click(page, 1301);
    EXPECT_EQ(10, list.GetItemCount());
    Apply(dialog);
    EXPECT_EQ(36200, DirectReadInt(kGesture, L"U", -1));
    EXPECT_EQ(35000, DirectReadInt(kGesture, L"DRULDRUL", -1));
    EXPECT_EQ(-1, DirectReadInt(kGesture, L"D", -1));
    EXPECT_EQ(0x00FF00, DirectReadInt(kMouse, L"GestureCol", -1));
}

}  // namespace
