// "/KEYLIST" run for real: the folder browser worked from here, the lists read back from disk.
#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/Files.h"
#include "support/Process.h"
#include "support/OptionWindow.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

namespace fs = std::filesystem;

const wchar_t* const kCommandLists[] = {L"ExternalDefCommand.txt", L"ExternalUserCommand.txt", L"ScriptCommand.txt",
                                        L"ScriptNaviCommand.txt",  L"UserMenuCommand.txt",     L"PlugInCommand.txt"};
const wchar_t* const kListNames[] = {
    L"Command mode.csv", L"Command mode Shift.csv", L"Command mode Ctrl.csv", L"Command mode Ctrl+Shift.csv",
    L"Search mode.csv",  L"Search mode Shift.csv",  L"Search mode Ctrl.csv",  L"Search mode Ctrl+Shift.csv",
};

// The lines of a UTF-16 file, each with its line end.
std::vector<std::wstring> Lines(const fs::path& path) {
    const std::wstring text = e2e::ReadUtf16File(path.wstring());
    std::vector<std::wstring> lines;
    for (size_t start = 0, end; start < text.size(); start = end) {
        end = text.find(L"\r\n", start);
        end = end == std::wstring::npos ? text.size() : end + 2;
        lines.push_back(text.substr(start, end - start));
    }
    return lines;
}

// A key file: 304 words, the given ones set, the rest 0.
void WriteKeyFile(const fs::path& path, const std::vector<std::pair<int, uint16_t>>& words) {
    std::wstring units(304, L'\0');
    for (auto [index, word] : words) units[index] = static_cast<wchar_t>(word);
    e2e::WriteUtf16File(path.wstring(), units);
}

// A user directory of its own with the sample command lists, the English language, and an empty output folder.
class KeyListTest : public testing::Test {
protected:
    void SetUp() override {
        root = fs::temp_directory_path() / ("KeyListTest" + std::to_string(GetCurrentProcessId()));
        user = root / L"User";
        out = root / L"Out";
        fs::remove_all(root);
        fs::create_directories(user);
        fs::create_directories(out);
        for (const wchar_t* list : kCommandLists) {
            fs::copy_file(fs::path(e2e::StageRoot()) / L"User" / list, user / list);
        }
        e2e::registry::WriteDword(reg::kSettings, L"UserDirMode", 2);
        e2e::registry::WriteString(reg::kSettings, L"UserDir", user.wstring());
        e2e::registry::WriteString(reg::kSettings, L"NLS", L".en-US");
    }
    void TearDown() override { fs::remove_all(root); }

    e2e::registry::ScopedKey settings{reg::kSettings};
    fs::path root;
    fs::path user;
    fs::path out;
};

// Saved key files are what the lists show; each list already there is overwritten only when the user says yes to it.
TEST_F(KeyListTest, SavedKeysAreListedAndNoKeepsThatOneFile) {
    const int a = 0, shiftA = 76, ctrlShiftEnt = 3 * 76 + 75;
    WriteKeyFile(user / L"CommandMode.key", {{a, 33000}, {ctrlShiftEnt, 42600}});
    WriteKeyFile(user / L"SerchMode.key", {{shiftA, 42501}});
    WriteKeyFile(user / L"SearchMode.key", {{a, 35900}});
    const std::wstring kept = L"Command mode Shift.csv";
    for (const wchar_t* name : kListNames) e2e::WriteFileBytes((out / name).wstring(), "old");
    e2e::Process option = e2e::StartOption({L"/KEYLIST"});
    HWND browser = option ? e2e::FindFolderBrowser(option.Id()) : nullptr;
    ASSERT_NE(nullptr, browser);
    ASSERT_TRUE(e2e::SelectFolder(option.Handle(), browser, out.wstring()));
    ASSERT_TRUE(e2e::Answer(browser, IDOK));
    for (const wchar_t* name : kListNames) {
        HWND box = e2e::FindMessageBox(option.Id());
        ASSERT_NE(nullptr, box) << testing::PrintToString(std::wstring(name));
        std::wstring expected = L"Do you want to overwrite it?\n" + (out / name).wstring();
        EXPECT_NE(std::wstring::npos, e2e::DialogText(box).find(expected))
            << testing::PrintToString(e2e::DialogText(box));
        ASSERT_TRUE(e2e::Answer(box, name == kept ? IDNO : IDYES));
    }
    EXPECT_EQ(0u, option.WaitOrKill());

    for (const wchar_t* name : kListNames) {
        if (name == kept)
            EXPECT_EQ("old", e2e::ReadFileBytes((out / name).wstring()));
        else
            EXPECT_EQ(76u, Lines(out / name).size()) << testing::PrintToString(std::wstring(name));
    }
    EXPECT_EQ(L"\uFEFF\"A\",\"User bar 1 button 1\"\r\n", Lines(out / L"Command mode.csv")[0]);
    EXPECT_EQ(L"\"Ent\",\"---\"\r\n", Lines(out / L"Command mode.csv")[75]);
    EXPECT_EQ(L"\"Ent\",\"External command 42600\"\r\n", Lines(out / L"Command mode Ctrl+Shift.csv")[75]);
    EXPECT_EQ(L"\uFEFF\"A\",\"Open in Paint\"\r\n", Lines(out / L"Search mode Shift.csv")[0]);
    EXPECT_EQ(L"\uFEFF\"A\",\"---\"\r\n", Lines(out / L"Search mode.csv")[0]);
}

}  // namespace
