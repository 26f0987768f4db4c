#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "pages/CDlgBkImage.h"
#include "ui/ListBox.h"
#include "ui/ListView.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kSettings = L"Software\\Tarnwick\\QOR\\Main001\\Settings";
constexpr platform::WindowRef kHost = 0x1234;

class SkinAndEventPagesTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.windows().AddHostWindow(kHost);
        fake_.files().AddDirectory(L"C:\\Qor\\img\\Default");
        fake_.files().AddFile(L"C:\\Qor\\img\\Sakura\\Readme.txt", Utf16Bytes(L"桜のスキン", true));
        fake_.files().AddDirectory(L"C:\\Qor\\StatusImg\\Dots");
        fake_.files().AddFile(L"C:\\Qor\\command\\Sound\\chime.wav", std::string_view());
        user_ = app_.directories.UserDirectory();
        fake_.files().AddFile(user_ + L"Script\\eject.txt", std::string_view());
        for (const wchar_t* cache : {L"imgChache.iconimg", L"imgDriveChache.iconimg"})
            fake_.files().AddFile(user_ + cache, std::string_view("cache"));
    }

    std::wstring LastMessage() { return fake_.prompts().shown().empty() ? L"" : fake_.prompts().shown().back().text; }
    bool CachesKept() {
        return fake_.files().GetAttributes(user_ + L"imgChache.iconimg") != platform::kInvalidAttributes;
    }

    std::wstring user_;
};

std::wstring ListBoxSelection(HWND page, int id) {
    const ui::ListBox list(GetDlgItem(page, id));
    return list.GetCurSel() == LB_ERR ? L"<none>" : list.SelectedText();
}

// Selected by the start of its name; Apply drops the icon caches. A skin no folder has leaves nothing
// selected, and Apply keeps nothing at all, not even the transparency typed.
TEST_F(SkinAndEventPagesTest, SkinPageChoosesFromTheInstalledFolders) {
    // clang-format off
    struct Case { const wchar_t* stored; const wchar_t* selected; const wchar_t* readme; bool kept; };
    const Case cases[] = {
        {L"Sakura", L"Sakura", L"\xFEFF桜のスキン", true}, {L"sak", L"Sakura", L"\xFEFF桜のスキン", true},
        {L"Gone", L"<none>", L"", false},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.stored)));
        fake_.registry().DeleteKey(kSettings);
        DirectWriteString(kSettings, L"SkinName", c.stored);
        DirectWriteString(kSettings, L"PrgSkin", L"Dots");
        AppServices app{96};
        app.commandOptionRoot = app_.commandOptionRoot;
        COptionDlg dialog(app);
        HWND page = Open(dialog, 12);
        ASSERT_NE(nullptr, page);
        EXPECT_EQ(c.selected, ListBoxSelection(page, 1601));
        EXPECT_EQ(L"Dots", ListBoxSelection(page, 1602));
        EXPECT_EQ(c.readme, TextOf(GetDlgItem(page, 1001)));
        SetDlgItemTextW(page, 1003, L"77");
        const size_t heard = fake_.windows().commands().size();
        Apply(dialog);
        EXPECT_EQ(c.kept ? L"Sakura" : c.stored, DirectReadString(kSettings, L"SkinName", L""));
        EXPECT_EQ(c.kept ? 77 : -1, DirectReadInt(kSettings, L"BkAlpha", -1));
        EXPECT_EQ(c.kept ? std::vector<uint16_t>{49013} : std::vector<uint16_t>{}, Codes(heard));
        EXPECT_EQ(!c.kept, CachesKept());
        fake_.files().AddFile(user_ + L"imgChache.iconimg", std::string_view("cache"));
    }
    // Another folder shows its own readme, none here.
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 12);
    ASSERT_NE(nullptr, page);
    SendDlgItemMessageW(page, 1601, LB_SETCURSEL, 0, 0);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(1601, LBN_SELCHANGE), reinterpret_cast<LPARAM>(GetDlgItem(page, 1601)));
    EXPECT_EQ(L"", TextOf(GetDlgItem(page, 1001)));
}

// The two numbers count in some modes only, with the mode's unit; OK takes what the mode allows.
TEST_F(SkinAndEventPagesTest, BackgroundDialogFollowsItsMode) {
    // clang-format off
    struct Case { int radio; const wchar_t *x, *y; bool enabled; const wchar_t* unit; INT_PTR result; int mode; };
    const Case cases[] = {
        {1201, L"500", L"300", true, L"0～100%", IDCANCEL, 0}, {1202, L"100", L"0", true, L"0～100%", IDOK, 1},
        {1203, L"500", L"300", false, L"", IDOK, 2}, {1205, L"500", L"300", true, L"0～65535Pix", IDOK, 4},
        {1205, L"65536", L"0", true, L"0～65535Pix", IDCANCEL, 4},
    };
    // clang-format on
    fake_.images().AddPicture(L"D:\\Sea.png", {48, 40, 24, false});
    for (const Case& c : cases) {
        SCOPED_TRACE(c.radio);
        CDlgBkImage background(app_);
        background.file = L"C:\\Pictures\\sky.png";
        bool enabled = false;
        std::wstring unit;
        fake_.prompts().Clear();
        fake_.prompts().ChooseFolder({true, L"D:\\Sea.png"});
        const INT_PTR result =
            RunModal(background, {
                                     [&](HWND window) {
                                         SetDlgItemTextW(window, 1001, c.x);
                                         SetDlgItemTextW(window, 1002, c.y);
                                         SendDlgItemMessageW(window, 1051, WM_SYSKEYDOWN, VK_DOWN, 1 << 29);
                                         Click(window, c.radio);
                                         enabled = IsWindowEnabled(GetDlgItem(window, 1001)) &&
                                                   IsWindowEnabled(GetDlgItem(window, 1002));
                                         unit = TextOf(GetDlgItem(window, 1402));
                                         Click(window, IDOK);
                                     },
                                     [](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); },
                                 });
        EXPECT_EQ(c.enabled, enabled);
        EXPECT_EQ(c.unit, unit);
        EXPECT_EQ(c.result, result);
        EXPECT_EQ(c.mode, background.mode);
        EXPECT_EQ(L"D:\\Sea.png", background.file) << "chosen by Alt+Down in the field";
        EXPECT_EQ(c.mode == 0 ? L"Enter a number between 0-100." : L"",
                  c.mode == 0 || c.result == IDOK ? LastMessage() : L"");
    }
}

// A namesake picked elsewhere is as good, a file the folder lacks is refused; the box starts on the row's
// file or the pattern. Apply writes every row, the empty ones too.
TEST_F(SkinAndEventPagesTest, RowsKeepBareNamesFromTheirFolder) {
    const std::wstring sounds = L"C:\\Qor\\command\\Sound\\";
    const std::wstring scripts = user_ + L"Script\\";
    // clang-format off
    struct Case { int page; const wchar_t* section; const wchar_t* value; const wchar_t* stored; int row;
                  std::wstring label; std::wstring start; std::wstring chosen; std::wstring kept; std::wstring refusal;
                  uint16_t code; };
    const Case cases[] = {
        {19, L"Sound", L"SoundComplete", L"old.wav", 11, L"フォルダ表示完了", sounds + L"old.wav",
         L"D:\\Else\\chime.wav", L"chime.wav", L"", 49015},
        {19, L"Sound", L"SoundBooting", L"", 0, L"アプリケーション起動", sounds + L"*.wav",
         L"D:\\Else\\bell.wav", L"", L"アプリケーションのインストールフォルダー\\command\\Soundフォルダー以外にあるWAVファイルは指定できません。", 49015},
        {18, L"Event", L"CmdDiskAdd", L"mount.txt", 2, L"ディスクの取り外し／取り出しを検出", scripts + L"mount.txt",
         scripts + L"eject.txt", L"eject.txt", L"", 49014},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.value);
        const std::wstring key = L"Software\\Tarnwick\\QOR\\Main001\\" + std::wstring(c.section);
        fake_.registry().DeleteKey(key);
        DirectWriteString(key, c.value, c.stored);
        AppServices app{96};
        app.commandOptionRoot = app_.commandOptionRoot;
        COptionDlg dialog(app);
        HWND page = Open(dialog, c.page);
        ASSERT_NE(nullptr, page);
        ui::ListView list(GetDlgItem(page, 1601));
        EXPECT_EQ(c.label, list.GetItemText(c.row, 0));
        EXPECT_EQ(c.stored, list.GetItemText(c.row, 1));
        const std::wstring nothingSelected = app.messages.Get(62301);
        fake_.prompts().Clear();
        Click(page, 1301);
        EXPECT_EQ(nothingSelected, LastMessage());
        list.SelectRow(c.row);
        fake_.prompts().ChooseFolder({true, c.chosen});
        const size_t shown = fake_.prompts().shown().size();
        Click(page, 1301);
        ASSERT_EQ(1u, fake_.prompts().browsed().size());
        EXPECT_EQ(c.start, fake_.prompts().browsed().back().start);
        EXPECT_EQ(shown + (c.refusal.empty() ? 0 : 1), fake_.prompts().shown().size());
        EXPECT_EQ(c.refusal.empty() ? L"" : c.refusal, c.refusal.empty() ? L"" : LastMessage());
        EXPECT_EQ(c.refusal.empty() ? c.kept : c.stored, list.GetItemText(c.row, 1));
        const size_t heard = fake_.windows().commands().size();
        Apply(dialog);
        EXPECT_EQ(c.refusal.empty() ? c.kept : c.stored, DirectReadString(key, c.value, L"<none>"));
        EXPECT_EQ(L"", DirectReadString(key, c.page == 19 ? L"SoundRecent" : L"CmdListSelChange", L"<none>"));
        EXPECT_EQ(std::vector<uint16_t>{c.code}, Codes(heard));
        // Clearing empties the row.
        Click(page, 1302);
        EXPECT_EQ(L"", list.GetItemText(c.row, 1));
    }
}

}  // namespace
