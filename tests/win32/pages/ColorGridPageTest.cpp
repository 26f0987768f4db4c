// The colour page's grid worked by the keyboard as a user works it: a tick, a colour from the chooser,
// a text edited in place, groups folded; what is marked as edited, what a palette does to it, and
// what Apply stores and tells the host.
#include <gtest/gtest.h>
#include <windows.h>

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
}

// A translation that lost words from a label list ends the page rather than show blank labels; the
// vision palette handler still answers though no button of the page reaches it.
TEST_F(ColorGridPageTest, AShortLabelListEndsThePageAndTheVisionHandlerAsksForHelp) {
    SendMessageW(page_->hwnd(), WM_COMMAND, MAKEWPARAM(IDC_COLOR_VISION_FIRST + 2, BN_CLICKED), 0);
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_EQ(L"開発協力者を求めています。", fake_.prompts().shown()[0].caption);

    DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
    fake_.files().AddFile(L"C:\\Qor\\command\\Option\\.en-US\\Option\\198.txt",
                          Utf16Bytes(L"\r\n1404\tStatic\tExtension colours/Group/Colour\r\n", true));
    AppServices app{96};  // a process of its own, which reads the language anew
    app.commandOptionRoot = app_.commandOptionRoot;
    COptionDlg translated(app);
    ASSERT_TRUE(translated.Create(nullptr));
    EXPECT_EQ(0, translated.Page(26)->opened);
    ASSERT_EQ(2u, fake_.prompts().shown().size());
    EXPECT_EQ(L"Encountered an improper argument.", fake_.prompts().shown()[1].text);
}

}  // namespace
