// The colour page in the running program: a palette pressed and applied reaches the registry and
// every host hears that the colours changed; a palette then Cancel writes nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>


#include "support/FakeHostProcess.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"
#include "support/Screenshot.h"

namespace {

namespace reg = e2e::registry;

constexpr wchar_t kColor[] = L"Software\\Tarnwick\\Qor\\Main001\\Color";
constexpr wchar_t kViewFont[] = L"Software\\Tarnwick\\Qor\\Main001\\ViewFont";
constexpr int kApply = 1301;
constexpr int kExplorer = 1303;
constexpr int kBlack = 1304;
constexpr int kFirstSkin = 1201;
constexpr int kGrid = 2;

class ColorPageTest : public testing::Test {
protected:
    void SetUp() override {
        reg::DeleteKey(kColor);
        reg::WriteDword(reg::kOptionPage, L"Start", 26);
    }

    HWND OpenColorPage() {
        option = e2e::StartOption();
        if (!option) return nullptr;
        dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
        return dialog ? e2e::PageWith(dialog, kBlack) : nullptr;
    }
    static int32_t Stored(const wchar_t* name) {
        return static_cast<int32_t>(reg::ReadDword(kColor, name).value_or(0xDEADBEEF));
    }

    reg::ScopedKey page_{reg::kOptionPage};
    reg::ScopedKey color_{kColor};
    reg::ScopedKey font_{kViewFont};
    e2e::Process option;
    HWND dialog = nullptr;
};

TEST_F(ColorPageTest, TheBlackPaletteAppliedReachesTheRegistryAndTheHost) {
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    HWND page = OpenColorPage();
    ASSERT_NE(nullptr, page);
    e2e::Click(page, kBlack);
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49001u, 49099u));
    const auto sys = [](int index) { return static_cast<int32_t>(GetSysColor(index)); };
    const struct {
        const wchar_t* name;
        int32_t value;
    } black[] = {
        {L"Color", 62},    {L"1", 0xFFFFFF},  {L"2", 0x00FF00},
        {L"3", 0xFF575D},  {L"4", 0xFF00FF},  {L"5", 0xFFFF00},
        {L"6", 0xFF8080},  {L"7", 0},         {L"8", 0xFFFFFF},
        {L"9", sys(13)},   {L"10", 0x7F7F7F}, {L"11", 0xFF},
        {L"12", 0x7FFF},   {L"13", 0x1F1FFF}, {L"15", 0},
        {L"16", 0x3C3C3C}, {L"17", 0x7FFFFF}, {L"18", 0x3F7F00},
        {L"19", 0x7F7F},   {L"20", 0x3F1F00}, {L"21", 0x1F3F00},
        {L"22", 0x3F3F},   {L"24", 0x3C3C3C}, {L"25", 0xFFFFFF},
        {L"26", sys(18)},  {L"27", sys(15)},  {L"ApplicationLook", 33204},
    };
    for (const auto& value : black) EXPECT_EQ(value.value, Stored(value.name)) << testing::PrintToString(value.name);
    for (const wchar_t* never : {L"14", L"23", L"s00", L"s04"}) {
        EXPECT_FALSE(reg::ReadDword(kColor, never).has_value()) << testing::PrintToString(never);
    }
    EXPECT_EQ(L"exe,com,bat,scr,pif,vbs", reg::ReadString(kColor, L"Ex1").value_or(L"<absent>"));
    EXPECT_TRUE(reg::ReadDword(kViewFont, L"Point").has_value()) << "the font is written with the colours";

    // A picture for people to look at: the dark palette, a colour selected by the keyboard.
    HWND grid = GetDlgItem(page, kGrid);
    for (int row = 0; row < 4; ++row) PostMessageW(grid, WM_KEYDOWN, VK_DOWN, 0);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    e2e::CaptureWindow(dialog, e2e::PicturePath(L"colour-grid.bmp"));
    option.CloseDialog(dialog);
}

TEST_F(ColorPageTest, APaletteThenCancelWritesNothing) {
    reg::WriteDword(kColor, L"ApplicationLook", 33211);
    HWND page = OpenColorPage();
    ASSERT_NE(nullptr, page);
    EXPECT_EQ(BST_CHECKED, SendDlgItemMessageW(page, kFirstSkin, BM_GETCHECK, 0, 0)) << "an unknown skin";
    e2e::Click(page, kExplorer);
    option.CloseDialog(dialog);
    EXPECT_FALSE(reg::ReadDword(kColor, L"Color").has_value());
    EXPECT_EQ(33211, Stored(L"ApplicationLook"));
}

}  // namespace
