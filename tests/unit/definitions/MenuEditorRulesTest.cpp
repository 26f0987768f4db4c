#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "unit/Utf16.h"
#include "definitions/MenuCommandFields.h"
#include "definitions/MenuFolder.h"
#include "platform/fake/FakePlatform.h"

namespace {

TEST(MenuEditorRulesTest, EachKindOfArgumentEnablesItsControls) {
    struct Case {
        int row;
        MenuCommandControls controls;  // text, target, pick text, pick target, macro text, macro target
    };
    // clang-format off
    const Case cases[] = {
        {0,  {true,  true,  false, false, false, false}},  // <Comment>: free text both
        {1,  {true,  true,  false, true,  false, false}},  // MENUITEM: the command picker for the target
        {3,  {false, false, false, false, false, false}},  // SEPARATOR
        {6,  {true,  true,  false, true,  false, true}},   // SCRIPT: a file
        {9,  {true,  true,  false, true,  false, true}},   // NEW: a directory
        {16, {true,  true,  false, false, false, false}},  // WILDCARD: free filter text
        {17, {true,  false, true,  false, false, false}},  // POSITION: the helper's words
        {18, {true,  false, true,  false, true,  false}},  // DIRECTORY: a directory first
        {19, {true,  false, true,  false, true,  false}},  // DIR_SCRIPT: a file first
        {23, {true,  false, true,  false, false, false}},  // HIDDEN_ITEM : ON or OFF
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.controls, ControlsForKeyword(c.row)) << "row " << c.row;
}

TEST(MenuEditorRulesTest, OkCleansTheFieldsAndAsksForWhatTheKeywordNeeds) {
    struct Case {
        std::wstring command, text, target;
        std::wstring message, command2, text2, target2;
    };
    // clang-format off
    const Case cases[] = {
        {L" menuitem\t", L"\tOpen ", L"33301", L"", L"menuitem", L"Open", L"33301"},
        {L"MENUITEM", L"Open", L" ", L"Command ID has not been entered.", L"MENUITEM", L"Open", L""},
        {L"SCRIPT", L"", L"a.txt", L"Menu text has not been entered.", L"SCRIPT", L"", L"a.txt"},
        {L"SEPARATOR", L"left", L"over", L"", L"SEPARATOR", L"", L""},
        {L"POPUP", L"Tools", L"x", L"", L"POPUP", L"Tools", L""},
        {L"NOTEPAD", L"Edit", L"", L"", L"NOTEPAD", L"Edit", L""},
        {L"Any words", L"", L"", L"", L"Any words", L"", L""},          // a comment needs nothing
        {L"HIDDEN_ITEM ", L"ON", L"", L"", L"HIDDEN_ITEM", L"ON", L""},  // the table's blank goes
        {L"POSITION", L"", L"", L"Position has not been entered.", L"POSITION", L"", L""},
    };
    // clang-format on
    for (Case c : cases) {
        const std::wstring message = FinishMenuCommand(c.command, c.text, c.target);
        EXPECT_EQ(std::tie(c.message, c.command2, c.text2, c.target2), std::tie(message, c.command, c.text, c.target));
    }
}

TEST(MenuEditorRulesTest, ThePageListsFilesWithTheirFirstLineCleaned) {
    platform::fake::FakePlatform fake;
    const std::wstring folder = L"C:\\User\\Menu\\";
    fake.files().AddDirectory(folder + L"Sub");
    fake.files().AddFile(folder + L"Main.txt", Utf16Bytes(L"\xFEFF\x2605Main\tmenu \x2605\r\nPOPUP\tA\r\n"));
    fake.files().AddFile(folder + L"Empty.txt", std::string_view());
    fake.files().AddFile(folder + L"Blank.txt", Utf16Bytes(L"\x2605 \r\n"));
    fake.files().AddFile(folder + L"Long.txt", Utf16Bytes(std::wstring(300, L'x')));
    const std::vector<MenuFileEntry> expected = {{L"Blank.txt", L""},
                                                 {L"Empty.txt", L"<No explanation>"},
                                                 {L"Long.txt", std::wstring(254, L'x')},
                                                 {L"Main.txt", L"Main menu"}};
    EXPECT_EQ(expected, ListMenuFiles(folder));
}

}  // namespace
