// The macro helper with its real template, over fake data files.
#include <gtest/gtest.h>
#include <windows.h>

#include "definitions/CDlgMacroHelperEx.h"
#include "resources/definitions/DefinitionIds.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;
using platform::fake::ShownMessage;
using MacroHelperTest = OptionDialogFixture;

// The title, each tab ("on", "off", checked in brackets), then the rows as "macro|information".
std::vector<std::wstring> State(HWND dialog) {
    std::vector<std::wstring> state{TextOf(dialog)};
    for (int id = IDC_MACRO_HELPER_FIRST_TAB; id <= IDC_MACRO_HELPER_LAST_TAB; ++id) {
        std::wstring tab = IsWindowEnabled(GetDlgItem(dialog, id)) ? L"on" : L"off";
        state.push_back(IsDlgButtonChecked(dialog, id) ? L"[" + tab + L"]" : tab);
    }
    ui::ListView list(GetDlgItem(dialog, IDC_MACRO_HELPER_LIST));
    for (int row = 0; row < list.GetItemCount(); ++row)
        state.push_back(list.GetItemText(row, 0) + L"|" + list.GetItemText(row, 1));
    return state;
}

// Only the caller's tabs are usable; an entry without a tab is reported once, after the rows before it.
TEST_F(MacroHelperTest, TabsRowsAndResult) {
    const std::wstring folder = L"C:\\Qor\\command\\Option\\.ja-JP\\Option\\MacroHelper\\";
    fake_.files().AddFile(folder + L"macro_input.txt", Utf16Bytes(L"?SelFile?\tquoted/?Name?\tname\r\n", true));
    fake_.files().AddFile(folder + L"qor_path.txt", Utf16Bytes(L"%User_dir%\tuser/", true));
    CDlgMacroHelperEx helper(app_);
    helper.mode = 1;
    helper.enabled = {true, true, false, false, false, false};
    std::vector<std::vector<std::wstring>> seen;
    auto doubleClickRow = [&](HWND dialog) {
        seen.push_back(State(dialog));
        ui::ListView(GetDlgItem(dialog, IDC_MACRO_HELPER_LIST)).SelectRow(1);
        NMHDR click{GetDlgItem(dialog, IDC_MACRO_HELPER_LIST), IDC_MACRO_HELPER_LIST, static_cast<UINT>(NM_DBLCLK)};
        SendMessageW(dialog, WM_NOTIFY, IDC_MACRO_HELPER_LIST, reinterpret_cast<LPARAM>(&click));
    };
    EXPECT_EQ(IDOK, RunModal(helper, {doubleClickRow}));
    EXPECT_EQ(L"?Name?", helper.result);

    auto otherTabThenOk = [&](HWND dialog) {
        SendDlgItemMessageW(dialog, IDC_MACRO_HELPER_QOR_PATHS, BM_CLICK, 0, 0);
        seen.push_back(State(dialog));
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    };
    EXPECT_EQ(IDOK, RunModal(helper, {otherTabThenOk}));
    EXPECT_EQ(L"", helper.result);
    EXPECT_EQ(0, helper.mode);
    EXPECT_EQ((std::vector<std::vector<std::wstring>>{
                  {L"マクロ入力", L"on", L"[on]", L"off", L"off", L"off", L"off", L"?SelFile?|\tquoted",
                   L"?Name?|\tname\r\n"},
                  {L"マクロ入力", L"[on]", L"on", L"off", L"off", L"off", L"off", L"%User_dir%|\tuser"}}),
              seen);
    EXPECT_EQ((std::vector<ShownMessage>{{L"Error resorce text.\n", 0}}), fake_.prompts().shown());
}

}  // namespace
