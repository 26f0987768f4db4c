#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace fs = std::filesystem;
namespace reg = e2e::registry;

constexpr int kApply = 1301;
constexpr int kKeyList = 1601;
constexpr int kEdit = 1301;
constexpr int kClear = 1302;
constexpr int kPickerId = 1001;
constexpr int kPickerSearch = 1301;
constexpr unsigned kRefresh = 33301;  // a command of the sample main menu
const wchar_t* const kKeyFiles[] = {L"CommandMode.key", L"SerchMode.key", L"Mode3.key", L"Mode4.key", L"Mode5.key",
                                    L"Mode6.key",       L"Mode7.key",     L"Mode8.key", L"Mode9.key"};

class KeyPageTest : public testing::Test {
protected:
    void SetUp() override {
        user = fs::temp_directory_path() / ("KeyPageTest" + std::to_string(GetCurrentProcessId()));
        fs::remove_all(user);
        fs::create_directories(user);
        fs::copy(fs::path(e2e::StageRoot()) / L"User", user, fs::copy_options::recursive);
        reg::WriteDword(reg::kSettings, L"UserDirMode", 2);
        reg::WriteString(reg::kSettings, L"UserDir", user.wstring() + L"\\");
        reg::WriteDword(reg::kOptionPage, L"Start", 2);
    }
    void TearDown() override { fs::remove_all(user); }

    // The option dialog open on the key page, its first key selected as the keyboard would.
    HWND OpenKeyPage() {
        option = e2e::StartOption();
        if (!option) return nullptr;
        dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
        HWND page = dialog ? e2e::PageWith(dialog, kKeyList) : nullptr;
        if (!page) return nullptr;
        PostMessageW(GetDlgItem(page, kKeyList), WM_KEYDOWN, VK_HOME, 0);
        e2e::WaitUntilDialogIdle(dialog, option.Handle());
        return page;
    }
    std::string KeyFiles() const {
        std::string all;
        for (const wchar_t* name : kKeyFiles) all += e2e::ReadFileBytes((user / name).wstring()) + "|";
        return all;
    }

    reg::ScopedKey page_{reg::kOptionPage};
    reg::ScopedKey settings_{reg::kSettings};
    fs::path user;
    e2e::Process option;
    HWND dialog = nullptr;
};

TEST_F(KeyPageTest, ABindingFromThePickerReachesTheKeyFilesAndCancelKeepsThem) {
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    HWND page = OpenKeyPage();
    ASSERT_NE(nullptr, page);
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kEdit, BN_CLICKED), 0);
    HWND picker = e2e::FindVisibleWindow(option.Id(), L"機能一覧");
    ASSERT_NE(nullptr, picker);
    e2e::SetText(picker, kPickerId, L"33301");
    e2e::Click(picker, kPickerSearch);
    e2e::Answer(picker, IDOK);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    e2e::Click(dialog, kApply);
    EXPECT_THAT(host.Commands(), testing::ElementsAre(48999u, 49009u, 49099u));
    const std::string saved = KeyFiles();
    for (const wchar_t* name : kKeyFiles) EXPECT_EQ(608u, fs::file_size(user / name)) << fs::path(name).string();
    const std::string mode0 = e2e::ReadFileBytes((user / L"CommandMode.key").wstring());
    EXPECT_EQ(kRefresh, static_cast<unsigned char>(mode0[0]) | static_cast<unsigned char>(mode0[1]) << 8)
        << "key A of the command mode";

    // Clearing a key after the Apply and cancelling changes no file.
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kClear, BN_CLICKED), 0);
    HWND question = e2e::FindMessageBox(option.Id());
    ASSERT_NE(nullptr, question);
    e2e::Answer(question, IDYES);
    e2e::WaitUntilDialogIdle(dialog, option.Handle());
    option.CloseDialog(dialog);
    EXPECT_EQ(saved, KeyFiles());
}

}  // namespace
