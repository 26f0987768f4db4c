// The language the user chose reaches the program's message boxes.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "support/Process.h"
#include "support/OptionWindow.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

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
    e2e::registry::ScopedKey settings(reg::kSettings);
    const std::wstring lang = e2e::StageRoot() + L"\\Lang\\";
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.messageFile)));
        ASSERT_TRUE(CopyFileW((lang + c.messageFile).c_str(), (lang + L"Msg.zz-ZZ.txt").c_str(), FALSE));
        e2e::registry::WriteString(reg::kSettings, L"NLS", L".zz-ZZ");
        e2e::Process option = e2e::StartOption({L"/T", L"C:\\none.txt"});
        ASSERT_TRUE(option);
        HWND box = e2e::FindMessageBox(option.Id());
        ASSERT_NE(nullptr, box);
        std::wstring text = e2e::DialogText(box);
        EXPECT_NE(std::wstring::npos, text.find(c.expected)) << "shown: " << testing::PrintToString(text);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        EXPECT_EQ(0u, option.WaitOrKill());
        DeleteFileW((lang + L"Msg.zz-ZZ.txt").c_str());
    }
}

}  // namespace
