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

constexpr const wchar_t* kDataFolder = L"C:\\Qor\\command\\Option\\.ja-JP\\Option\\MacroHelper\\";

class MacroHelperTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        AddData(L"macro_input.txt", L"?SelFile?\tquoted/?Name?\tname\r\n");
        AddData(L"qor_path.txt", L"%User_dir%\tuser/");
    }
    void AddData(const std::wstring& name, const std::wstring& text) {
        fake_.files().AddFile(kDataFolder + name, Utf16Bytes(text, true));
    }

    // The tab checked, each tab's state ("on", "off") and the rows, column 0 and column 1.
    static std::vector<std::wstring> State(HWND dialog) {
        std::vector<std::wstring> state;
        for (int id = IDC_MACRO_HELPER_FIRST_TAB; id <= IDC_MACRO_HELPER_LAST_TAB; ++id) {
            std::wstring tab = IsWindowEnabled(GetDlgItem(dialog, id)) ? L"on" : L"off";
            state.push_back(IsDlgButtonChecked(dialog, id) ? L"[" + tab + L"]" : tab);
        }
        ui::ListView list(GetDlgItem(dialog, IDC_MACRO_HELPER_LIST));
        for (int row = 0; row < list.GetItemCount(); ++row)
            state.push_back(list.GetItemText(row, 0) + L"|" + list.GetItemText(row, 1));
        return state;
    }
};

// Opened on its start tab with only the caller's tabs usable; the selected row's macro is the result,
// and a double click acts as OK.
TEST_F(MacroHelperTest, StartTabRowsAndResult) {
    CDlgMacroHelperEx helper(app_);
    helper.mode = 1;
    helper.enabled = {true, true, true, false, false, false};
    std::vector<std::wstring> seen;
    INT_PTR result = RunModal(
        helper, {[&](HWND dialog) {
            seen = State(dialog);
            ui::ListView(GetDlgItem(dialog, IDC_MACRO_HELPER_LIST)).SelectRow(1);
            NMHDR click{GetDlgItem(dialog, IDC_MACRO_HELPER_LIST), IDC_MACRO_HELPER_LIST, static_cast<UINT>(NM_DBLCLK)};
            SendMessageW(dialog, WM_NOTIFY, IDC_MACRO_HELPER_LIST, reinterpret_cast<LPARAM>(&click));
        }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ((std::vector<std::wstring>{L"on", L"[on]", L"on", L"off", L"off", L"off", L"?SelFile?|\tquoted",
                                         L"?Name?|\tname\r\n"}),
              seen);
    EXPECT_EQ(L"?Name?", helper.result);
}

// A tab click reads that tab's file: an entry without a tab is reported once after the rows before it.
// OK with no row selected gives an empty result.
TEST_F(MacroHelperTest, TabClickRefillsAndOkWithoutSelection) {
    CDlgMacroHelperEx helper(app_);
    helper.mode = 1;
    helper.enabled = {true, true, false, false, false, false};
    helper.result = L"left over";
    std::vector<std::wstring> seen;
    std::wstring title;
    INT_PTR result = RunModal(helper, {[&](HWND dialog) {
                                  title = TextOf(dialog);
                                  SendDlgItemMessageW(dialog, IDC_MACRO_HELPER_QOR_PATHS, BM_CLICK, 0, 0);
                                  seen = State(dialog);
                                  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
                              }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(L"マクロ入力", title);
    EXPECT_EQ((std::vector<std::wstring>{L"[on]", L"on", L"off", L"off", L"off", L"off", L"%User_dir%|\tuser"}), seen);
    EXPECT_EQ((std::vector<ShownMessage>{{L"Error resorce text.\n", 0}}), fake_.prompts().shown());
    EXPECT_EQ(0, helper.mode);
    EXPECT_EQ(L"", helper.result);
}

}  // namespace
