#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace fs = std::filesystem;
namespace reg = e2e::registry;

constexpr int kApply = 1301;
constexpr int kBackground = 1301;
constexpr int kBackgroundFile = 1051;
constexpr int kPlacedMode = 1201;
constexpr int kBackgroundX = 1001;
constexpr int kBackgroundY = 1002;
constexpr int kRows = 1601;
constexpr int kChoose = 1301;
constexpr int kFileBoxName = 1148;  // the file name field of the system's open box
constexpr wchar_t kEvents[] = L"Software\\Tarnwick\\Qor\\Main001\\Event";
constexpr wchar_t kSounds[] = L"Software\\Tarnwick\\Qor\\Main001\\Sound";

class SkinAndEventPagesTest : public testing::Test {
protected:
    void SetUp() override {
        user = fs::temp_directory_path() / ("SkinAndEventPagesTest" + std::to_string(GetCurrentProcessId()));
        fs::remove_all(user);
        fs::copy(fs::path(e2e::StageRoot()) / L"User", user, fs::copy_options::recursive);
        reg::WriteDword(reg::kSettings, L"UserDirMode", 2);
        reg::WriteString(reg::kSettings, L"UserDir", user.wstring() + L"\\");
    }
    void TearDown() override { fs::remove_all(user); }

    HWND Open(int pageId, int controlId) {
        reg::WriteDword(reg::kOptionPage, L"Start", static_cast<DWORD>(pageId));
        option = e2e::StartOption();
        if (!option) return nullptr;
        dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
        return dialog ? e2e::PageWith(dialog, controlId) : nullptr;
    }

    // Picks the file in the system's open box that the page's button brings up for the row.
    void PickFile(HWND page, int row, const fs::path& file) {
        e2e::SelectListRow(option.Handle(), GetDlgItem(page, kRows), row);
        PostMessageW(page, WM_COMMAND, MAKEWPARAM(kChoose, BN_CLICKED), 0);
        HWND box = e2e::FindWindowOf(option.Id(), [](HWND window) {
            return IsWindowVisible(window) && GetDlgItem(window, kFileBoxName) != nullptr;
        });
        ASSERT_NE(nullptr, box) << "no file box";
        e2e::SetText(box, kFileBoxName, file.wstring().c_str());
        e2e::Answer(box, IDOK);
        e2e::WaitUntilDialogIdle(dialog, option.Handle());
    }

    reg::ScopedKey page_{reg::kOptionPage};
    reg::ScopedKey settings_{reg::kSettings};
    reg::ScopedKey events_{kEvents};
    reg::ScopedKey sounds_{kSounds};
    fs::path user;
    e2e::Process option;
    HWND dialog = nullptr;
};

// Every row is written, the empty ones too.
TEST_F(SkinAndEventPagesTest, FilesAreStoredByTheirBareNamesAndACancelledBackgroundNothing) {
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    // clang-format off
    struct Case { int page; int row; fs::path file; const wchar_t* section; const wchar_t* value; const wchar_t* empty; };
    const Case cases[] = {
        {19, 11, fs::path(e2e::StageRoot()) / L"command" / L"Sound" / L"chime.wav", kSounds, L"SoundComplete",
         L"SoundBooting"},
        {18, 2, user / L"Script" / L"Notepad.txt", kEvents, L"CmdDiskAdd", L"CmdInitInstance"},
    };
    // clang-format on
    ASSERT_NE(nullptr, Open(19, kRows));
    for (const Case& c : cases) {
        SCOPED_TRACE(c.page);
        ASSERT_TRUE(e2e::SelectTreeItem(dialog, c.page));
        e2e::WaitUntilDialogIdle(dialog, option.Handle());
        HWND page = e2e::PageWith(dialog, kRows);
        ASSERT_NE(nullptr, page);
        PickFile(page, c.row, c.file);
    }
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49014u, 49015u, 49099u));
    for (const Case& c : cases) {
        SCOPED_TRACE(c.page);
        EXPECT_EQ(c.file.filename().wstring(), reg::ReadString(c.section, c.value).value_or(L"<none>"));
        EXPECT_EQ(L"", reg::ReadString(c.section, c.empty).value_or(L"-"));
    }

    ASSERT_TRUE(e2e::SelectTreeItem(dialog, 12));
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    HWND page = e2e::PageWith(dialog, kBackground);
    ASSERT_NE(nullptr, page);
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kBackground, BN_CLICKED), 0);
    HWND background = e2e::FindVisibleWindow(option.Id(), L"背景画像");
    ASSERT_NE(nullptr, background);
    const std::wstring picture = e2e::StageRoot() + L"\\Background\\leaf.png";
    e2e::SetText(background, kBackgroundFile, picture.c_str());
    SendMessageW(GetDlgItem(background, kPlacedMode), BM_CLICK, 0, 0);
    e2e::SetText(background, kBackgroundX, L"50");
    e2e::SetText(background, kBackgroundY, L"25");
    EXPECT_TRUE(e2e::Answer(background, IDOK)) << "OK refused the background";
    option.CloseDialog(dialog);
    for (const wchar_t* name : {L"BkImgName", L"SkinName", L"PrgSkin"}) {
        EXPECT_EQ(std::nullopt, reg::ReadString(reg::kSettings, name)) << fs::path(name).string();
    }
    for (const wchar_t* name : {L"BkMode", L"BkPosX", L"BkPosY", L"BkAlpha"}) {
        EXPECT_EQ(std::nullopt, reg::ReadDword(reg::kSettings, name)) << fs::path(name).string();
    }
}

}  // namespace
