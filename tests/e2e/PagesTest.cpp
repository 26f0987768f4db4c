// The pages' own rules are the in-process page tests'; here: values that take a way of their own (bits, a
// text, a combo, values the page rewrites), the colour page's palette, a page with a dialog of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

constexpr int kApply = 1301;
constexpr wchar_t kListDraw[] = L"Software\\Tarnwick\\Qor\\Main001\\ListDraw";
constexpr wchar_t kMouse[] = L"Software\\Tarnwick\\Qor\\Main001\\Mouse";
constexpr wchar_t kTabStyle[] = L"Software\\Tarnwick\\Qor\\Main001\\TabStyle";
constexpr wchar_t kColor[] = L"Software\\Tarnwick\\Qor\\Main001\\Color";
constexpr wchar_t kViewFont[] = L"Software\\Tarnwick\\Qor\\Main001\\ViewFont";
constexpr wchar_t kPlugins[] = L"Software\\Tarnwick\\QOR\\Main001\\PvPlugin";

// A button pressed (a check or radio changes with it), a field typed, or a combo item picked.
struct Change {
    int control;
    const wchar_t* typed = nullptr;
    int item = -1;
};

// The value stored beforehand and the one Apply leaves: a number, or a text when text is set.
struct Value {
    const wchar_t* name;
    DWORD number = 0;
    const wchar_t* text = nullptr;
};

void Write(const wchar_t* section, const Value& value) {
    value.text ? reg::WriteString(section, value.name, value.text) : reg::WriteDword(section, value.name, value.number);
}

std::wstring Read(const wchar_t* section, const Value& value) {
    if (value.text) return reg::ReadString(section, value.name).value_or(L"<absent>");
    const std::optional<DWORD> number = reg::ReadDword(section, value.name);
    return number ? std::to_wstring(*number) : L"<absent>";
}

TEST(Pages, EachPageStoresItsSectionAndTellsTheHostItsCode) {
    // clang-format off
    struct Case { int page; const wchar_t* section; Value stored; std::vector<Change> changes; Value applied;
                  unsigned code; };
    const Case cases[] = {
        {28, kListDraw, {L"ListCtrls", 0xFFFFFFFF}, {{1260}}, {L"ListCtrls", 5}, 49028},
        {40, kMouse, {L"ContextMenu", 0x33333333}, {{1252}}, {L"ContextMenu", 0x33333331}, 49037},
        {3,  kListDraw, {L"TimeFmt", 0, L"yyyy"}, {{1152, L"H:mm d/M"}}, {L"TimeFmt", 0, L"H:mm d/M"}, 49000},
        // A right click command the page does not offer is written back as closing the tab.
        {31, kTabStyle, {L"TabBarClkR", 12345}, {}, {L"TabBarClkR", 35112}, 49031},
        // A skin the colour page does not know is stored as the first one.
        {26, kColor, {L"ApplicationLook", 33211}, {}, {L"ApplicationLook", 33204}, 49001},
        // The script page's edit mode: the host has nothing to reread and hears only the brackets.
        {21, reg::kOptionPage, {L"ExToolMode", 0}, {{1151, nullptr, 2}}, {L"ExToolMode", 2}, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "page " << c.page << ", "
                                        << testing::PrintToString(std::wstring(c.applied.name)));
        reg::ScopedKey page(reg::kOptionPage), section(c.section);
        reg::DeleteKey(c.section);
        reg::WriteDword(reg::kOptionPage, L"Start", c.page);
        Write(c.section, c.stored);
        e2e::OptionBesideHost run;
        auto& [host, option, dialog] = run;
        ASSERT_TRUE(host.Window());
        ASSERT_NE(nullptr, dialog);
        HWND shown = nullptr;
        for (const Change& change : c.changes) {
            shown = e2e::PageWith(dialog, change.control);
            ASSERT_NE(nullptr, shown);
            if (change.typed)
                e2e::SetText(shown, change.control, change.typed);
            else if (change.item >= 0)
                SendDlgItemMessageW(shown, change.control, CB_SETCURSEL, change.item, 0);
            else  // as the mouse does it, so that a check or radio button changes too
                SendDlgItemMessageW(shown, change.control, BM_CLICK, 0, 0);
        }
        e2e::Click(dialog, kApply);
        EXPECT_EQ(Read(c.section, c.applied), c.applied.text ? c.applied.text : std::to_wstring(c.applied.number));
        EXPECT_EQ((c.code ? std::vector<unsigned>{48999, c.code, 49099} : std::vector<unsigned>{48999, 49099}),
                  host.Commands());
        EXPECT_EQ(0u, option.CloseDialog(dialog));
    }
}

// Applied, one value of each kind (fixed, the system's, copied from another row) is stored, the extension lists
// stay and the font is written with the colours.
TEST(ColorPage, TheBlackPaletteCancelledStoresNothingAndAppliedReachesTheRegistryAndTheHost) {
    reg::ScopedKey page{reg::kOptionPage}, color{kColor}, font{kViewFont};
    reg::WriteDword(reg::kOptionPage, L"Start", 26);
    for (const int button : {IDCANCEL, kApply}) {
        reg::DeleteKey(kColor);
        e2e::OptionBesideHost run;
        auto& [host, option, dialog] = run;
        HWND palettes = dialog ? e2e::PageWith(dialog, 1304) : nullptr;
        ASSERT_NE(nullptr, palettes);
        e2e::Click(palettes, 1304);
        if (button == IDCANCEL) {
            option.CloseDialog(dialog);
            EXPECT_FALSE(reg::ReadDword(kColor, L"Color").has_value());
            EXPECT_TRUE(host.Commands().empty());
            continue;
        }
        e2e::Click(dialog, kApply);
        EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49001u, 49099u));
        const auto stored = [](const wchar_t* name) {
            return static_cast<int32_t>(reg::ReadDword(kColor, name).value_or(0xDEADBEEF));
        };
        EXPECT_EQ((std::vector<int32_t>{62, 0xFFFFFF, static_cast<int32_t>(GetSysColor(13)), 0x3C3C3C, 0x3C3C3C,
                                        static_cast<int32_t>(GetSysColor(18)), 33204}),
                  (std::vector<int32_t>{stored(L"Color"), stored(L"1"), stored(L"9"), stored(L"16"), stored(L"24"),
                                        stored(L"26"), stored(L"ApplicationLook")}));
        for (const wchar_t* never : {L"14", L"23", L"s00", L"s04"})
            EXPECT_FALSE(reg::ReadDword(kColor, never).has_value()) << testing::PrintToString(never);
        EXPECT_EQ(L"exe,com,bat,scr,pif,vbs", reg::ReadString(kColor, L"Ex1").value_or(L"<absent>"));
        EXPECT_TRUE(reg::ReadDword(kViewFont, L"Point").has_value());
        option.CloseDialog(dialog);
    }
}

// With the sample plug-ins beside the program.
TEST(PreviewPage, APluginAddedIsRegisteredWithItsOwnExtensions) {
    reg::ScopedKey page(reg::kOptionPage);
    reg::ScopedKey plugins(kPlugins);
    reg::ScopedKey preview(L"Software\\Tarnwick\\QOR\\Main001\\PreView");
    reg::DeleteKey(kPlugins);
    reg::WriteString(kPlugins, L"Dll1", L"Stale.dll");
    reg::WriteDword(reg::kOptionPage, L"Start", 6);
    e2e::OptionBesideHost run;
    auto& [host, option, dialog] = run;
    ASSERT_TRUE(host.Window());
    ASSERT_NE(nullptr, dialog);
    HWND pagePane = e2e::PageWith(dialog, 1601);
    ASSERT_NE(nullptr, pagePane);

    PostMessageW(pagePane, WM_COMMAND, MAKEWPARAM(1302, BN_CLICKED), 0);
    HWND editor = e2e::FindVisibleWindow(option.Id(), L"プレビュープラグイン");
    ASSERT_NE(nullptr, editor);
    e2e::SetText(editor, 1001, L"TextPeek.dll");
    e2e::Click(editor, IDOK);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    // The editor goes once its modal loop has ended, which may come after the dialog is idle.
    for (int wait = 0; IsWindow(editor) && wait < 200; ++wait) Sleep(50);
    ASSERT_FALSE(IsWindow(editor));
    e2e::Click(dialog, kApply);
    EXPECT_EQ((std::vector<std::wstring>{L"TextPeek.dll", L"txt,log,ini,csv", L""}),
              (std::vector<std::wstring>{Read(kPlugins, {L"Dll0", 0, L""}), Read(kPlugins, {L"Ext0", 0, L""}),
                                         Read(kPlugins, {L"Dll1", 0, L""})}));
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49003u, 49099u));
    option.CloseDialog(dialog);
}

}  // namespace
