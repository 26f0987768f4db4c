// "/R" and "/E" on the sample files; Cancel leaves the file byte for byte.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <cwctype>
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

// The samples are in the saved form already: what a save changes is the edit alone.
TEST(RunDefinitionEditor, ASavedChangeIsWhatTheHostReadsAndCancelWritesNothing) {
    reg::ScopedKey appInfo(reg::kAppInfo);
    reg::WriteDword(reg::kAppInfo, L"Message", 0xFFFFFFFF);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    const fs::path folder = fs::temp_directory_path() / ("RunDefinitionEditor" + std::to_string(GetCurrentProcessId()));
    // Each editor once, one saved and one cancelled; the switch in either case.
    for (const wchar_t* switchText : {L"/R", L"/e"}) {
        SCOPED_TRACE(switchText);
        const bool run = std::towupper(switchText[1]) == L'R';
        const bool save = std::iswupper(switchText[1]);
        fs::remove_all(folder);
        fs::create_directories(folder);
        const fs::path file = folder / (run ? L"Notepad.txt" : L"OpenByType.txt");
        fs::copy_file(fs::path(e2e::StageRoot()) / L"User" / L"Script" / file.filename(), file);
        const std::string before = e2e::ReadFileBytes(file.wstring());
        std::wstring expected = e2e::ReadUtf16File(file.wstring());
        // Opened by a host in window mode 3, the editor is owned by the host's window.
        e2e::Process option = e2e::StartOption({switchText, file.wstring()},
                                               {e2e::HostSwitch(e2e::SwitchString(3, 0, 0, 0, 0, L"none"))});
        ASSERT_TRUE(option);
        HWND editor = e2e::FindVisibleWindow(option.Id(), run ? L"スクリプト編集" : L"拡張子連動コマンド編集");
        ASSERT_NE(nullptr, editor);
        EXPECT_EQ(host.Window(), GetWindow(editor, GW_OWNER));
        if (run) {
            EXPECT_EQ(L"C:\\Windows\\notepad.exe", e2e::Text(GetDlgItem(editor, 1052)));
            e2e::SetText(editor, 1001, L"?SelFile? /p");
            SendMessageW(GetDlgItem(editor, 1152), CB_SETCURSEL, 5, 0);
            expected.replace(expected.find(L"?SelFile?"), 9, L"?SelFile? /p");
            expected.replace(expected.find(L"BootMode=0"), 10, L"BootMode=5");
        } else {
            EXPECT_EQ(3, SendMessageW(GetDlgItem(editor, 1601), LVM_GETITEMCOUNT, 0, 0));
            e2e::Click(editor, 1305);
            e2e::SetText(editor, 1001, L"md");
            expected += L"Filter=md\r\nExRun=New Command\r\n";
        }
        PostMessageW(editor, WM_COMMAND, save ? IDOK : IDCANCEL, 0);
        if (save) {
            HWND question = e2e::FindWindowOf(option.Id(), [&](HWND window) {
                return window != editor && IsWindowVisible(window) && GetWindow(window, GW_OWNER) == editor;
            });
            ASSERT_NE(nullptr, question) << "saving is confirmed first";
            e2e::Answer(question, IDYES);
        }
        EXPECT_EQ(0u, option.WaitOrKill());
        if (save)
            EXPECT_EQ(expected, e2e::ReadUtf16File(file.wstring()));
        else
            EXPECT_EQ(before, e2e::ReadFileBytes(file.wstring()));
    }
    fs::remove_all(folder);
    EXPECT_TRUE(host.Commands().empty());
}

}  // namespace
