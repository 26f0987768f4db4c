// The language the user chose reaches the program's message boxes.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

// A language whose message file exists but whose resource library does not: the program says so,
// in that language's words (here the English file under a name of its own), and goes on.
TEST(Language, AMissingLibraryIsToldInTheChosenLanguage) {
    reg::ScopedKey settings(reg::kSettings);
    const std::wstring lang = e2e::StageRoot() + L"\\Lang\\";
    ASSERT_TRUE(CopyFileW((lang + L"Msg.en-US.txt").c_str(), (lang + L"Msg.zz-ZZ.txt").c_str(), FALSE));
    reg::WriteString(reg::kSettings, L"NLS", L".zz-ZZ");
    e2e::Process option = e2e::StartOption({L"/T", L"C:\\none.txt"});
    ASSERT_TRUE(option);
    HWND box = e2e::FindMessageBox(option.Id());
    ASSERT_NE(nullptr, box);
    const std::wstring text = e2e::DialogText(box);
    EXPECT_NE(std::wstring::npos, text.find(L"The language resource could not be loaded."))
        << "shown: " << testing::PrintToString(text);
    EXPECT_EQ(0u, option.CloseDialog(box, IDOK));
    DeleteFileW((lang + L"Msg.zz-ZZ.txt").c_str());
}

}  // namespace
