#include <gtest/gtest.h>

#include <map>

#include "definitions/CommandCatalog.h"
#include "definitions/CommandListFile.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";

class CommandCatalogTest : public testing::Test {
protected:
    CommandCatalogTest() { fake.files().AddDirectory(kUserDir); }

    // Every list exists, empty unless given.
    void WriteLists(const std::map<std::wstring, std::wstring>& contents) {
        for (const wchar_t* name : kCommandListFiles) {
            auto found = contents.find(name);
            std::wstring text = found == contents.end() ? L"" : found->second;
            fake.files().AddFile(std::wstring(kUserDir) + name, Utf16Bytes(text, true));
        }
    }

    FakePlatform fake;
    CommandCatalog catalog;
};

TEST_F(CommandCatalogTest, ListFileRules) {
    // A name "" is not listed.
    // clang-format off
    struct Case { const char* what; std::map<std::wstring, std::wstring> lists; int stored;
                  std::map<uint16_t, std::wstring> names; };
    const Case cases[] = {
        {"the later list wins", {{L"ExternalDefCommand.txt", L"41001\t\tN--\ta.exe\tFirst\r\n"},
                                 {L"UserMenuCommand.txt", L"41001\t\tN--\tb.exe\tSecond\r\n"}},
         2, {{41001, L"Second"}}},
        {"EOF ends its own list only, and only in capitals",
         {{L"ExternalDefCommand.txt",
           L"40001\t\t\ta\tOne\r\neof\r\n40002\t\t\tb\tTwo\r\n EOF \r\n40003\t\t\tc\tThree\r\n"},
          {L"ScriptCommand.txt", L"40004\t\t\td\tFour\r\n"}}, 3,
         {{40001, L"One"}, {40002, L"Two"}, {40003, L""}, {40004, L"Four"}}},
        {"three and six fields are skipped, four and five are data", {{L"ScriptNaviCommand.txt",
           L"40505\tN--\tx\r\n40506\t\tN--\tx\ty\tz\r\n40507\tN--\tx.exe\tFour\r\n40508\tC\tN--\tx.exe\tFive\r\n"}}, 2,
         {{40505, L""}, {40506, L""}, {40507, L"Four"}, {40508, L"Five"}}},
        {"a comment line is skipped even with five fields", {{L"PlugInCommand.txt",
           L"//41501\t\tN--\tx\tHidden\r\n  //41502\t\tN--\tx\tIndented\r\n41503\t\tN--\tx\t//Shown\r\n"}}, 1,
         {{41501, L""}, {41502, L""}, {41503, L"//Shown"}}},
        {"an empty comment shifts the line to the four-field form",
         {{L"ExternalUserCommand.txt", L"42501\tS\tNF-\tnotepad.exe\t\r\n"}}, 1, {{42501, L"notepad.exe"}}},
        {"byte order marks vanish anywhere in a line",
         {{L"ExternalDefCommand.txt", L"400\uFEFF01\t\tN--\tx\tCo\uFEFFpy\uFEFF\r\n"}}, 1, {{40001, L"Copy"}}},
        {"identifiers keep 16 bits, lines may end in LF alone, blank lines are skipped",
         {{L"ExternalDefCommand.txt", L"\r\n65537\t\t\tx\tWrapped\n\t\r\n-1\t\t\tx\tTop\r\n"}}, 2,
         {{1, L"Wrapped"}, {65535, L"Top"}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        WriteLists(c.lists);
        catalog.Clear();
        EXPECT_EQ(c.stored, catalog.LoadCommandLists(kUserDir));
        for (const auto& [id, name] : c.names) EXPECT_EQ(name, catalog.LookupListedCommand(id)) << id;
    }
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(CommandCatalogTest, FieldsOfBothLineForms) {
    fake.files().AddFile(L"C:\\list.txt", Utf16Bytes(L"40001\tCS\tNF-\tcmd /c dir\tList\r\n"
                                                     L"40002\t-FD\ttool.exe\tOld form\r\n"
                                                     L"40003\tX\tN--\tx\t\r\n"));
    std::vector<CommandListEntry> entries;
    ASSERT_TRUE(ReadCommandList(L"C:\\list.txt", entries));
    EXPECT_EQ((std::vector<CommandListEntry>{{40001, L"CS", L"NF-", L"cmd /c dir", L"List"},
                                             {40002, L"", L"-FD", L"tool.exe", L"Old form"},
                                             {40003, L"", L"X", L"N--", L"x"}}),
              entries);
    EXPECT_FALSE(ReadCommandList(L"C:\\none.txt", entries));
}

TEST_F(CommandCatalogTest, EachMissingListIsToldAndTheOthersAreRead) {
    fake.files().AddFile(std::wstring(kUserDir) + L"ScriptCommand.txt", Utf16Bytes(L"40004\t\t\tx\tScript\r\n"));
    EXPECT_EQ(1, catalog.LoadCommandLists(kUserDir));
    EXPECT_EQ(L"Script", catalog.LookupListedCommand(40004));
    std::vector<ShownMessage> expected;
    for (const wchar_t* name : kCommandListFiles) {
        if (std::wstring(name) != L"ScriptCommand.txt")
            expected.push_back({L"Cannot open " + std::wstring(kUserDir) + name, 0});
    }
    EXPECT_EQ(expected, fake.prompts().shown());
}

}  // namespace
