// The run definition editors of "/R" and "/E" on the sample files, worked from another process: a
// change saved with OK is on disk in the form the host reads, Cancel leaves the file byte for byte;
// and the script page's edit mode, applied, is stored while the host hears nothing to reread.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <string>

#include "support/FakeHostProcess.h"
#include "support/Files.h"
#include "support/HostHandshake.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace fs = std::filesystem;
namespace reg = e2e::registry;

constexpr wchar_t kOptionPage[] = L"Software\\Tarnwick\\QOR\\Command\\Option\\OptionPage";
constexpr wchar_t kAppInfo[] = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";

void Post(HWND window, int id) {
    PostMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
}

std::wstring Text(HWND control) {
    wchar_t text[512] = {};
    SendMessageW(control, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return text;
}

TEST(RunDefinitionEditor, ASavedChangeIsWhatTheHostReadsAndCancelWritesNothing) {
    reg::ScopedKey appInfo(kAppInfo);
    reg::WriteDword(kAppInfo, L"Message", 0xFFFFFFFF);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    const std::wstring run =
        L"\uFEFFCommandlineOption=?SelFile? /p\r\nOpenMode=1\r\nMultiCommandMode=0\r\n"
        L"ShiftSilentMode=1\r\nBootDir=\r\nBootMode=5\r\nRun=C:\\Windows\\notepad.exe\r\n";
    const std::wstring exRun =
        L"\uFEFFCommandLineOption=?SelFile?\r\nMultiCommandMode=0\r\nShiftSilentMode=0\r\nBootDir=\r\nBootMode=0\r\n"
        L"OpenMode=0\r\nFilter=txt,log,ini\r\nExRun=C:\\Windows\\notepad.exe\r\nFilter=bmp,png\r\n"
        L"ExRun=C:\\Windows\\system32\\mspaint.exe\r\nFilter=\r\nExRun=C:\\Windows\\explorer.exe|C:\\Windows\\notepad."
        L"exe\r\n"
        L"Filter=md\r\nExRun=New Command\r\n";
    // clang-format off
    struct Case { const wchar_t* switchText; const wchar_t* sample; const wchar_t* title; int button; const wchar_t* saved; };
    const Case cases[] = {
        {L"/R", L"Notepad.txt", L"スクリプト編集", IDOK, run.c_str()},
        {L"/r", L"Notepad.txt", L"スクリプト編集", IDCANCEL, nullptr},
        {L"/E", L"OpenByType.txt", L"拡張子連動コマンド編集", IDOK, exRun.c_str()},
        {L"/e", L"OpenByType.txt", L"拡張子連動コマンド編集", IDCANCEL, nullptr},
    };
    // clang-format on
    const fs::path folder = fs::temp_directory_path() / ("RunDefinitionEditor" + std::to_string(GetCurrentProcessId()));
    for (const Case& c : cases) {
        SCOPED_TRACE(std::wstring(c.switchText) + L" " + c.sample);
        fs::remove_all(folder);
        fs::create_directories(folder);
        const fs::path file = folder / c.sample;
        fs::copy_file(fs::path(e2e::StageRoot()) / L"User" / L"Script" / c.sample, file);
        const std::string before = e2e::ReadFileBytes(file.wstring());
        // Opened by a host in window mode 3, the editor is owned by the host's window.
        e2e::Process option = e2e::StartOption({c.switchText, file.wstring()},
                                               {e2e::HostSwitch(e2e::SwitchString(3, 0, 0, 0, 0, L"none"))});
        ASSERT_TRUE(option);
        HWND editor = e2e::FindVisibleWindow(option.Id(), c.title);
        ASSERT_NE(nullptr, editor);
        EXPECT_EQ(host.Window(), GetWindow(editor, GW_OWNER));
        if (c.switchText[1] == L'R' || c.switchText[1] == L'r') {
            EXPECT_EQ(L"C:\\Windows\\notepad.exe", Text(GetDlgItem(editor, 1052)));
            SendMessageW(GetDlgItem(editor, 1001), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"?SelFile? /p"));
            SendMessageW(GetDlgItem(editor, 1152), CB_SETCURSEL, 5, 0);
        } else {
            EXPECT_EQ(3, SendMessageW(GetDlgItem(editor, 1601), LVM_GETITEMCOUNT, 0, 0));
            SendMessageW(editor, WM_COMMAND, MAKEWPARAM(1305, BN_CLICKED), 0);
            SendMessageW(GetDlgItem(editor, 1001), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"md"));
        }
        Post(editor, c.button);
        if (c.button == IDOK) {
            HWND question = e2e::FindWindowOf(option.Id(), [&](HWND window) {
                return window != editor && IsWindowVisible(window) && GetWindow(window, GW_OWNER) == editor;
            });
            ASSERT_NE(nullptr, question) << "saving is confirmed first";
            e2e::Answer(question, IDYES);
        }
        EXPECT_EQ(0u, option.WaitOrKill());
        if (c.saved)
            EXPECT_EQ(c.saved, e2e::ReadUtf16File(file.wstring()));
        else
            EXPECT_EQ(before, e2e::ReadFileBytes(file.wstring()));
    }
    fs::remove_all(folder);
    EXPECT_TRUE(host.Commands().empty());
}

TEST(RunDefinitionEditor, TheScriptPagesModeIsStoredAndTheHostHearsOnlyTheBrackets) {
    reg::ScopedKey page(kOptionPage);
    reg::WriteDword(kOptionPage, L"Start", 21);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    e2e::Process option = e2e::StartOption();
    ASSERT_TRUE(option);
    HWND dialog = e2e::FindVisibleWindow(option.Id(), L"オプション");
    ASSERT_NE(nullptr, dialog);
    HWND scripts = e2e::PageWith(dialog, 1303);
    ASSERT_NE(nullptr, scripts);
    EXPECT_EQ(0, SendMessageW(GetDlgItem(scripts, 1151), CB_GETCURSEL, 0, 0));
    SendMessageW(GetDlgItem(scripts, 1151), CB_SETCURSEL, 2, 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    EXPECT_EQ(2u, reg::ReadDword(kOptionPage, L"ExToolMode").value_or(99));
    EXPECT_EQ((std::vector<unsigned>{48999, 49099}), host.Commands());
    Post(dialog, IDCANCEL);
    EXPECT_EQ(0u, option.WaitOrKill());
}

}  // namespace
