#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <string>

#include "support/FakeHostProcess.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

constexpr wchar_t kMain[] = L"Software\\Tarnwick\\Qor\\Main001\\";
const std::wstring kGesture = std::wstring(kMain) + L"Gesture";
const std::wstring kMouse = std::wstring(kMain) + L"Mouse";
const std::wstring kListMouse = std::wstring(kMain) + L"ListMouse";
constexpr int kApply = 1301;
constexpr int kGestureList = 1601;
constexpr int kAdd = 1302;
constexpr int kUp = 1301;
constexpr int kRight = 1303;
constexpr int kPick = 1307;
constexpr int kPickerId = 1001;
constexpr int kPickerSearch = 1301;

// Every value of a key as name and number; nullopt when the key is missing.
std::optional<std::map<std::wstring, DWORD>> Numbers(const std::wstring& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return std::nullopt;
    std::map<std::wstring, DWORD> values;
    for (DWORD index = 0;; ++index) {
        wchar_t name[520];
        DWORD chars = 520, value = 0, size = sizeof value;
        if (RegEnumValueW(key, index, name, &chars, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size) !=
            ERROR_SUCCESS)
            break;
        values[name] = value;
    }
    RegCloseKey(key);
    return values;
}

// Posts a press of a button that may open a modal window, and waits for the window titled so.
HWND PressFor(HWND window, int id, const e2e::Process& option, const wchar_t* title) {
    PostMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
    return e2e::FindVisibleWindow(option.Id(), title);
}

// The wheel page stores its two values wherever the blank-area page left the store: both applied, they land
// in "ListMouse" beside the scripts; an emptied script name stays empty.
TEST(MousePages, AGestureAndTheWheelValuesReachTheKeysTheHostReads) {
    reg::ScopedKey page{reg::kOptionPage}, gesture{kGesture}, mouse{kMouse}, listMouse{kListMouse};
    reg::DeleteKey(kGesture);
    reg::DeleteKey(kListMouse);
    reg::WriteDword(kGesture, L"UD", 33301);
    reg::WriteDword(kGesture, L"Lx", 7);
    reg::WriteDword(kMouse, L"Gesture", 1);
    reg::WriteDword(reg::kOptionPage, L"Start", 14);
    e2e::OptionBesideHost run;
    auto& [host, option, dialog] = run;
    ASSERT_TRUE(host.Window());
    ASSERT_NE(nullptr, dialog);
    auto idle = [&] { e2e::WaitUntilDialogIdle(dialog, option.Handle()); };
    HWND gestures = e2e::PageWith(dialog, kGestureList);
    ASSERT_NE(nullptr, gestures);
    HWND list = GetDlgItem(gestures, kGestureList);
    EXPECT_EQ(2, SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));

    HWND trail = PressFor(gestures, kAdd, option, L"マウスジェスチャ");
    ASSERT_NE(nullptr, trail);
    for (int arrow : {kUp, kUp, kRight}) e2e::Click(trail, arrow);
    EXPECT_EQ(L"\u2191\u2192", e2e::Text(GetDlgItem(trail, 1001)));
    PostMessageW(trail, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    e2e::WaitUntilDialogIdle(trail, option.Handle());
    EXPECT_TRUE(IsWindowVisible(trail)) << "OK without a command";
    HWND picker = PressFor(trail, kPick, option, L"機能一覧");
    ASSERT_NE(nullptr, picker);
    e2e::SetText(picker, kPickerId, L"33301");
    e2e::Click(picker, kPickerSearch);
    ASSERT_TRUE(e2e::Answer(picker, IDOK));
    ASSERT_TRUE(e2e::Answer(trail, IDOK));
    idle();
    EXPECT_EQ(3, SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));

    ASSERT_TRUE(e2e::SelectTreeItem(dialog, 42));
    idle();
    HWND blank = e2e::PageWith(dialog, 1004);
    ASSERT_NE(nullptr, blank);
    EXPECT_EQ(L"_ListNoSelDblClk.txt", e2e::Text(GetDlgItem(blank, 1002)));
    e2e::SetText(blank, 1001, L"Click.txt");
    e2e::SetText(blank, 1002, L"");
    ASSERT_TRUE(e2e::SelectTreeItem(dialog, 43));
    idle();
    HWND wheel = e2e::PageWith(dialog, 1260);
    ASSERT_NE(nullptr, wheel);
    e2e::SetCheck(wheel, 1251, true);
    e2e::SetCheck(wheel, 1201, false);
    e2e::SetCheck(wheel, 1202, true);
    e2e::Click(wheel, 1202);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(wheel, 1301))) << "no button held";
    e2e::SetCheck(wheel, 1260, true);
    e2e::Click(wheel, 1260);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(wheel, 1301))) << "the direction alone";
    e2e::SetCheck(wheel, 1258, true);
    e2e::Click(wheel, 1258);
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(wheel, 1301)));
    EXPECT_EQ(L"_ListWheel------C-U.txt", e2e::Text(GetDlgItem(wheel, 1902)));

    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49016u, 49039u, 49040u, 49099u));
    EXPECT_EQ((std::map<std::wstring, DWORD>{{L"UD", 33301}, {L"UR", 33301}, {L"Lx", 7}}), Numbers(kGesture));
    EXPECT_EQ(L"Click.txt", reg::ReadString(kListMouse, L"SpaceClk").value_or(L"<absent>"));
    EXPECT_EQ(L"", reg::ReadString(kListMouse, L"SpaceDblClk").value_or(L"<absent>"));
    EXPECT_EQ(1u, reg::ReadDword(kListMouse, L"UseWheelCmd").value_or(0));
    EXPECT_EQ(1u, reg::ReadDword(kListMouse, L"AltWheel").value_or(0));
    option.CloseDialog(dialog);
}

}  // namespace
