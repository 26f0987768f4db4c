#include <gtest/gtest.h>
#include <windows.h>

#include <uxtheme.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pages/COptionColorGridDlg.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kColor = L"Software\\Tarnwick\\QOR\\Main001\\Color";
constexpr platform::WindowRef kHost = 0x1234;

class ColorGridPageTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.windows().AddHostWindow(kHost);
        // A stored size, which the font row shows in points.
        DirectWriteInt(L"Software\\Tarnwick\\QOR\\Main001\\ViewFont", L"Point", -12);
        SetStart(26);
        ASSERT_TRUE(dialog_.Create(nullptr));
        page_ = dynamic_cast<COptionColorGridDlg*>(dialog_.Page(26));
        ASSERT_NE(nullptr, page_);
        grid_ = GetDlgItem(page_->hwnd(), IDC_COLOR_GRID);
        ASSERT_EQ(page_->grid().hwnd(), grid_);
        SetFocus(grid_);
    }

    void Key(WPARAM key, HWND to = nullptr) { SendMessageW(to ? to : grid_, WM_KEYDOWN, key, 0); }
    void Keys(std::initializer_list<WPARAM> keys) {
        for (WPARAM key : keys) Key(key);
    }
    const ui::Property& Selected() { return model().at(model().selected()); }
    ui::PropertyGridModel& model() { return page_->grid().model(); }
    std::vector<std::wstring> Marked() {
        std::vector<std::wstring> names;
        for (int id = 0; id < model().size(); ++id)
            if (model().at(id).modified) names.push_back(model().at(id).name);
        return names;
    }
    HWND EditInPlace() { return FindWindowExW(grid_, nullptr, L"Edit", nullptr); }

    // The selected property and value, the rows shown and from which, the text edited, the choosers opened.
    std::wstring State() {
        const ui::Property& property = Selected();
        std::wstring value = property.kind == ui::PropertyKind::Boolean  ? (property.check ? L"on" : L"off")
                             : property.kind == ui::PropertyKind::Colour ? ui::ColourText(property.colour)
                                                                         : property.text;
        const size_t choosers = fake_.prompts().colourOpenings().size() + fake_.prompts().fontOpenings().size();
        std::wstring state = property.name + L"=" + value + L" rows " + std::to_wstring(model().Rows().size()) +
                             L" from " + std::to_wstring(GetScrollPos(grid_, SB_VERT)) + L" choosers " +
                             std::to_wstring(choosers);
        if (GetCursor() == LoadCursorW(nullptr, IDC_SIZEWE)) state += L" sizing";
        return EditInPlace() ? state + L" editing " + TextOf(EditInPlace()) : state;
    }
    int RowHeight() {
        HDC dc = GetDC(grid_);
        HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(grid_, WM_GETFONT, 0, 0)));
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc, &metrics);
        SelectObject(dc, old);
        ReleaseDC(grid_, dc);
        return std::max<int>(metrics.tmHeight + 5, 16);
    }

    COptionDlg dialog_{app_};
    COptionColorGridDlg* page_ = nullptr;
    HWND grid_ = nullptr;
};

TEST_F(ColorGridPageTest, KeyboardEditsATickAColourAndATextAndApplyStoresThem) {
    EXPECT_EQ(L"フォント", Selected().name) << "the focus selects the first row";
    Keys({VK_DOWN, VK_SPACE});
    EXPECT_EQ(L"グラデーション描画する", Selected().name);
    EXPECT_FALSE(Selected().check);

    Keys({VK_DOWN, VK_DOWN});
    fake_.prompts().ChooseColourNext(0x123456);
    Key(VK_F4);
    EXPECT_EQ(L"属性なし", Selected().name);
    EXPECT_EQ(0x123456u, Selected().colour);
    fake_.prompts().ChooseColourNext(std::nullopt);
    Key(VK_RETURN);
    EXPECT_EQ(0x123456u, Selected().colour) << "a cancelled chooser changes nothing";
    EXPECT_EQ((std::vector<uint32_t>{0, 0x123456}), fake_.prompts().colourOpenings());

    Keys({VK_END, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RETURN});
    ASSERT_NE(nullptr, EditInPlace());
    EXPECT_EQ(GetFocus(), EditInPlace());
    SetWindowTextW(EditInPlace(), L"txt,log");
    Key(VK_RETURN, EditInPlace());
    EXPECT_EQ(nullptr, EditInPlace());
    EXPECT_EQ(grid_, GetFocus());
    EXPECT_EQ(L"txt,log", Selected().text);
    Key(VK_F2);
    SetWindowTextW(EditInPlace(), L"thrown away");
    Key(VK_ESCAPE, EditInPlace());
    EXPECT_EQ(L"txt,log", Selected().text);
    SendMessageW(grid_, WM_CHAR, L'c', 0);
    EXPECT_EQ(L"c", TextOf(EditInPlace())) << "typing starts an edit with what was typed";
    Key(VK_ESCAPE, EditInPlace());

    EXPECT_EQ((std::vector<std::wstring>{L"グラデーション描画する", L"属性なし", L"拡張子"}), Marked());
    Apply(dialog_);
    EXPECT_EQ(49 & ~16, DirectReadInt(kColor, L"Color", -1));
    EXPECT_EQ(0x123456, DirectReadInt(kColor, L"1", -1));
    EXPECT_EQ(L"txt,log", DirectReadString(kColor, L"Ex6", L""));
    for (const wchar_t* never : {L"14", L"s00"}) EXPECT_EQ(L"<absent>", DirectReadString(kColor, never, L"<absent>"));
    EXPECT_EQ(std::vector<uint16_t>{49001}, Codes());
}

TEST_F(ColorGridPageTest, GroupsFoldByKeyboardAndAPaletteShowsItsColoursUnmarked) {
    // Tab walks out of the grid to the first palette and back into it.
    SendMessageW(dialog_.hwnd(), WM_NEXTDLGCTL, 0, FALSE);
    EXPECT_EQ(GetDlgItem(page_->hwnd(), IDC_COLOR_DEFAULT), GetFocus());
    SendMessageW(dialog_.hwnd(), WM_NEXTDLGCTL, 1, FALSE);
    EXPECT_EQ(grid_, GetFocus());
    const size_t open = model().Rows().size();
    Keys({VK_DOWN, VK_DOWN});
    EXPECT_EQ(L"属性による色分け", Selected().name);
    Key(VK_LEFT);
    EXPECT_EQ(open - 10, model().Rows().size());
    Key(VK_ADD);
    EXPECT_EQ(open, model().Rows().size());
    Keys({VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RIGHT});
    EXPECT_EQ(L"圧縮", Selected().name);
    EXPECT_EQ(open + 2, model().Rows().size());
    Keys({VK_DOWN, VK_SPACE, VK_LEFT});
    EXPECT_EQ(L"圧縮", Selected().name) << "Left from a leaf goes to its group";
    Key(VK_SUBTRACT);
    EXPECT_EQ(open, model().Rows().size());
    EXPECT_EQ(std::vector<std::wstring>{L"色分けする"}, Marked());

    SendMessageW(page_->hwnd(), WM_COMMAND, MAKEWPARAM(IDC_COLOR_BLACK, BN_CLICKED), 0);
    EXPECT_EQ(std::vector<std::wstring>{}, Marked());
    const std::vector<int> leaves = model().Leaves();
    EXPECT_EQ(0xFFFFFFu, model().at(leaves[2]).colour);
    EXPECT_TRUE(model().at(leaves[13]).check) << "the dark palettes colour camouflaged files";
    EXPECT_EQ(L"<absent>", DirectReadString(kColor, L"1", L"<absent>")) << "the palette is the draft's";
    Key(VK_DOWN);
    EXPECT_EQ(model().Rows()[0].id, model().selected()) << "from no selection Down takes the first row";

    // The vision palette handler answers though no button of the page reaches it.
    SendMessageW(page_->hwnd(), WM_COMMAND, MAKEWPARAM(IDC_COLOR_VISION_FIRST + 2, BN_CLICKED), 0);
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_EQ(L"開発協力者を求めています。", fake_.prompts().shown()[0].caption);
}

// Where the mouse goes on a row: the fold glyph, the name, two fifths across (a name until the split is
// dragged left of it), the tick box, the middle of the value, the drop or "..." button, the split
// line; or the edit in place, for keys; or the whole grid, for the host's messages.
enum class Part { Glyph, Name, Between, Tick, Value, Button, Split, Edit, Grid };

TEST_F(ColorGridPageTest, MouseWheelScrollBarKeysAndHostMessagesAsTheUserSeesThem) {
    struct Step {
        UINT message;
        WPARAM wParam;
        int row;
        Part part;
        const wchar_t* expected;
    } const steps[] = {
        {WM_LBUTTONDOWN, 0, 8, Part::Name, L"圧縮= rows 29 from 0 choosers 0"},
        {WM_LBUTTONDOWN, 0, 8, Part::Glyph, L"圧縮= rows 31 from 0 choosers 0"},
        {WM_LBUTTONDBLCLK, 0, 8, Part::Name, L"圧縮= rows 29 from 0 choosers 0"},
        {WM_LBUTTONDOWN, 0, 1, Part::Value, L"グラデーション描画する=on rows 29 from 0 choosers 0"},
        {WM_LBUTTONDOWN, 0, 1, Part::Tick, L"グラデーション描画する=off rows 29 from 0 choosers 0"},
        {WM_LBUTTONDBLCLK, 0, 1, Part::Value, L"グラデーション描画する=on rows 29 from 0 choosers 0"},
        {WM_LBUTTONDOWN, 0, 3, Part::Value, L"属性なし=#000000 rows 29 from 0 choosers 0"},
        {WM_LBUTTONDOWN, 0, 3, Part::Button, L"属性なし=#563412 rows 29 from 0 choosers 1"},
        {WM_LBUTTONDBLCLK, 0, 3, Part::Value, L"属性なし=#563412 rows 29 from 0 choosers 2"},
        {WM_SYSKEYDOWN, VK_DOWN, 0, Part::Grid, L"属性なし=#563412 rows 29 from 0 choosers 3"},
        {WM_LBUTTONDOWN, 0, 0, Part::Button, L"フォント= rows 29 from 0 choosers 4"},
        {WM_KEYDOWN, VK_F2, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        // Without a visual style the boxes, buttons and glyphs are drawn classic.
        {WM_THEMECHANGED, 0, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        {WM_KEYDOWN, VK_NEXT, 0, Part::Grid, L"グループ2= rows 29 from 0 choosers 4"},
        {WM_KEYDOWN, VK_PRIOR, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        {WM_KEYDOWN, VK_END, 0, Part::Grid, L"グループ6= rows 29 from 4 choosers 4"},
        {WM_KEYDOWN, VK_HOME, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0, Part::Grid, L"フォント= rows 29 from 3 choosers 4"},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0, Part::Grid, L"フォント= rows 29 from 3 choosers 4"},
        {WM_VSCROLL, SB_BOTTOM, 0, Part::Grid, L"フォント= rows 29 from 4 choosers 4"},
        {WM_VSCROLL, SB_LINEUP, 0, Part::Grid, L"フォント= rows 29 from 3 choosers 4"},
        {WM_VSCROLL, SB_PAGEUP, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        {WM_VSCROLL, SB_LINEDOWN, 0, Part::Grid, L"フォント= rows 29 from 1 choosers 4"},
        {WM_VSCROLL, SB_ENDSCROLL, 0, Part::Grid, L"フォント= rows 29 from 1 choosers 4"},
        {WM_VSCROLL, SB_TOP, 0, Part::Grid, L"フォント= rows 29 from 0 choosers 4"},
        {WM_VSCROLL, SB_PAGEDOWN, 0, Part::Grid, L"フォント= rows 29 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 24, Part::Glyph, L"グループ2= rows 31 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 26, Part::Value, L"拡張子= rows 31 from 4 choosers 4 editing "},
        {WM_CHAR, L'x', 0, Part::Edit, L"拡張子= rows 31 from 4 choosers 4 editing x"},
        {WM_KEYDOWN, VK_DOWN, 0, Part::Edit, L"グループ3= rows 31 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 26, Part::Value, L"拡張子=x rows 31 from 4 choosers 4 editing x"},
        {WM_CHAR, L'y', 0, Part::Edit, L"拡張子=x rows 31 from 4 choosers 4 editing y"},
        {WM_CHAR, L'\r', 0, Part::Edit, L"拡張子=x rows 31 from 4 choosers 4 editing y"},
        {WM_LBUTTONDOWN, 0, 25, Part::Name, L"色=#007F3F rows 31 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 26, Part::Between, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 26, Part::Split, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_MOUSEMOVE, 0, 26, Part::Split, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_LBUTTONUP, 0, 26, Part::Split, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_LBUTTONDOWN, 0, 26, Part::Between, L"拡張子=y rows 31 from 4 choosers 4 editing y"},
        {WM_SETTINGCHANGE, 0, 0, Part::Grid, L"拡張子=y rows 31 from 4 choosers 4 editing y"},
        {WM_DPICHANGED_AFTERPARENT, 0, 0, Part::Grid, L"拡張子=y rows 31 from 4 choosers 4 editing y"},
        {WM_SIZE, 0, 0, Part::Grid, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_SETFONT, 0, 0, Part::Grid, L"拡張子=y rows 31 from 4 choosers 4"},
        {WM_VSCROLL, SB_BOTTOM, 0, Part::Grid, L"拡張子=y rows 31 from 27 choosers 4"},
        {WM_SETCURSOR, 0, 0, Part::Split, L"拡張子=y rows 31 from 27 choosers 4 sizing"},
    };
    ShowWindow(dialog_.hwnd(), SW_SHOWNA);
    fake_.prompts().ChooseColourNext(0x123456);
    HFONT big = CreateFontW(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg");
    RECT client{};
    GetClientRect(grid_, &client);
    int split = client.right / 2;
    for (const Step& step : steps) {
        const int height = RowHeight(), row = step.row - GetScrollPos(grid_, SB_VERT);
        const int depth = model().Rows()[static_cast<size_t>(step.row)].depth;
        const int x[] = {depth * height + height / 2, split - 10,
                         client.right * 2 / 5,        split + 8,
                         (split + client.right) / 2,  client.right - height / 2};
        WPARAM wParam = step.wParam;
        if (step.message == WM_MOUSEMOVE) split = client.right * 3 / 10;
        if (step.message == WM_THEMECHANGED) SetWindowTheme(grid_, L" ", L" ");
        if (step.message == WM_SIZE)
            SetWindowPos(grid_, nullptr, 0, 0, ScreenRect(grid_).right - ScreenRect(grid_).left, client.bottom / 2,
                         SWP_NOMOVE | SWP_NOZORDER);
        if (step.message == WM_SETFONT) wParam = reinterpret_cast<WPARAM>(big);
        if (step.message == WM_SETCURSOR) {
            POINT line{split, 0};
            ClientToScreen(grid_, &line);
            SetCursorPos(line.x, line.y);
            for (MSG msg; PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&msg);
        }
        const int at = step.part == Part::Split ? split : step.part < Part::Split ? x[int(step.part)] : 0;
        const LPARAM place = step.message == WM_SETCURSOR ? MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)
                             : step.part < Part::Edit     ? MAKELPARAM(at, row * height + height / 2)
                                                          : 0;
        SendMessageW(step.part == Part::Edit ? EditInPlace() : grid_, step.message, wParam, place);
        for (MSG msg; step.message != WM_SETCURSOR && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE);)
            DispatchMessageW(&msg);
        UpdateWindow(grid_);
        EXPECT_EQ(step.expected, State()) << "after message " << step.message << " on row " << step.row;
    }
    SendMessageW(grid_, WM_SETFONT, 0, 0);
    DeleteObject(big);
}

}  // namespace
