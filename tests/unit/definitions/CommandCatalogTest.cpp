#include <gtest/gtest.h>

#include <map>

#include "definitions/CommandCatalog.h"
#include "definitions/CommandDump.h"
#include "definitions/CommandListFile.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::LibraryContent;
using platform::fake::ShownMessage;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";
constexpr const wchar_t* kLibrary = L"C:\\Qor\\Lang\\Qor.en-US.dll";

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

TEST_F(CommandCatalogTest, CommandStrings) {
    // clang-format off
    fake.system().AddLibrary(kLibrary, LibraryContent{{{35900, L"Open\nOpen the item"}, {35901, L"\nOnly a tip"},
        {47000, L"Bar menu"}, {50551, L"External %d"}, {50556, L"User command %d\nTip"}, {50560, L"Bar 1 button %d"},
        {50564, L"Bar 5 button %d"}, {50574, L"Bar 9 button %d"}, {35903, L"Tab\tand\r\nCR\nmore"}}, {}});
    // clang-format on
    auto library = fake.system().LoadDataLibrary(kLibrary);
    WriteLists({{L"ExternalDefCommand.txt",
                 L"40001\t\tN--\tnotepad.exe\tEdit in Notepad\r\n"
                 L"33005\t\t\tx\tListed bar button\r\n"
                 L"35900\t\t\tx\tNot asked for\r\n"}});
    catalog.LoadCommandLists(kUserDir);
    // clang-format off
    struct Case { uint16_t id; bool withLibrary; std::wstring text; };
    const Case cases[] = {
        {0, true, L"---"}, {0, false, L"---"}, {33000, true, L"Bar 1 button 1"}, {33005, true, L"Listed bar button"},
        {33009, true, L"Bar 1 button 10"}, {33049, true, L"Bar 5 button 10"}, {33089, true, L"Bar 9 button 10"},
        {40001, true, L"Edit in Notepad"}, {40001, false, L"Edit in Notepad"}, {40002, true, L"External 40002"},
        {42501, true, L"User command 42501\nTip"}, {42600, false, L""}, {35900, true, L"Open"},
        {35900, false, L"Cannot get command string."}, {35901, true, L"Cannot get command string."},
        {35902, true, L"Cannot get command string."}, {47000, true, L"Bar menu"},
        {33090, true, L"Cannot get command string."}, {35903, true, L"Tab\tand\r"},  // the text ends at the first LF
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.text, catalog.GetCommandString(c.id, c.withLibrary ? library.get() : nullptr))
            << c.id << (c.withLibrary ? " with" : " without") << " library";
    }
}

TEST(CommandDump, Rows) {
    EXPECT_EQ(L"35900\tOpen\tOpen\r\n", CommandDumpRow(CommandDumpForm::Text, 35900, L"Open", L"Open"));
    EXPECT_EQ(L"<tr><td>40001</td><td>External 40001</td><td>Edit</td></tr>\r\n",
              CommandDumpRow(CommandDumpForm::Html, 40001, L"External 40001", L"Edit"));
    EXPECT_EQ(L"Cannot get command string.(Sort:35999)", CommandDumpMissingText(L"Sort", 35999));
}

}  // namespace
