// The language the user chose reaches the program's message boxes.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/Process.h"
#include "support/Registry.h"

namespace {

constexpr wchar_t kSettings[] = L"Software\\Tarnwick\\Qor\\Main001\\Settings";

// All static texts of the box, joined: the message itself is one of them.
std::wstring BoxText(HWND box) {
    std::wstring text;
    for (HWND child = FindWindowExW(box, nullptr, L"Static", nullptr); child;
         child = FindWindowExW(box, child, L"Static", nullptr)) {
        wchar_t buffer[1024] = {};
        GetWindowTextW(child, buffer, 1024);
        text += buffer;
    }
    return text;
}

struct FoundBox {
    DWORD process;
    HWND box = nullptr;
};

// The message box of a process, once its text is in: a dialog-class window the process owns.
HWND FindMessageBox(DWORD process, DWORD timeoutMs) {
    for (DWORD waited = 0; waited < timeoutMs; waited += 50) {
        FoundBox found{process};
        EnumWindows(
            [](HWND window, LPARAM data) -> BOOL {
                auto* found = reinterpret_cast<FoundBox*>(data);
                DWORD owner = 0;
                GetWindowThreadProcessId(window, &owner);
                wchar_t name[64] = {};
                GetClassNameW(window, name, 64);
                if (owner != found->process || std::wstring(name) != L"#32770") return TRUE;
                found->box = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        if (found.box && !BoxText(found.box).empty()) return found.box;
        Sleep(50);
    }
    return nullptr;
}

// A language whose message file exists but whose resource library does not: the program says so,
// in that language's words, and goes on.
TEST(Language, AMissingLibraryIsToldInTheChosenLanguage) {
    struct Case {
        const wchar_t* messageFile;
        const wchar_t* expected;
    };
    const Case cases[] = {
        {L"Msg.en-US.txt", L"The language resource could not be loaded."},
        {L"Msg.ja-JP.txt", L"言語リソースを読み込めませんでした。"},
    };
    e2e::registry::ScopedKey settings(kSettings);
    const std::wstring lang = e2e::StageRoot() + L"\\Lang\\";
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.messageFile)));
        ASSERT_TRUE(CopyFileW((lang + c.messageFile).c_str(), (lang + L"Msg.zz-ZZ.txt").c_str(), FALSE));
        e2e::registry::WriteString(kSettings, L"NLS", L".zz-ZZ");
        e2e::Process option = e2e::StartOption({L"/T", L"C:\\none.txt"});
        ASSERT_TRUE(option);
        HWND box = FindMessageBox(option.Id(), 10000);
        ASSERT_NE(nullptr, box);
        std::wstring text = BoxText(box);
        EXPECT_NE(std::wstring::npos, text.find(c.expected)) << "shown: " << testing::PrintToString(text);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        EXPECT_EQ(0u, option.WaitOrKill());
        DeleteFileW((lang + L"Msg.zz-ZZ.txt").c_str());
    }
}

}  // namespace
