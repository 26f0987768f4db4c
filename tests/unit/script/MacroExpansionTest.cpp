#include <gtest/gtest.h>

#include "script/MacroExpansion.h"
#include "unit/script/ScriptFixture.h"

namespace {

class MacroExpansionTest : public ScriptFixture {
protected:
    std::wstring Expand(std::wstring text, int32_t itemIndex, bool trim = false) {
        ExpandScriptText(text, variables, L"", L"", selection, itemIndex, trim, directories);
        return text;
    }

    VariableTable variables;
};

TEST_F(MacroExpansionTest, DatesFromOneReadingOfTheClock) {
    struct Case {
        const char* label;
        int32_t utcOffset;
        std::wstring text;
        std::wstring expected;
    };
    const Case cases[] = {
        {"a name fit for a file", 0, L"log_?Date?_?Time?.txt", L"log_2024-03-05_14-07-09.txt"},
        {"the parts", 0, L"?Year?|?Month?|?Day?|?Hour?|?Minute?|?Second?", L"2024|03|05|14|07|09"},
        {"weekday names and the locale's form", 0, L"?Week? ?WEEK? ?ShellTime?", L"Tue Tuesday 03/05/24 14:07:09"},
        {"every occurrence", 0, L"?Day??Day?", L"0505"},
        {"names compare with case", 0, L"?date? ?TIME? ?week?", L"?date? ?TIME? ?week?"},
        {"local time across midnight", 10 * 3600, L"?Date? ?Time? ?WEEK?", L"2024-03-06 00-07-09 Wednesday"},
    };
    for (const auto& c : cases) {
        fake.environment().SetUtcOffset(c.utcOffset);
        std::wstring text = c.text;
        ExpandDateMacros(text);
        EXPECT_EQ(c.expected, text) << c.label;
    }
}

TEST_F(MacroExpansionTest, Places) {
    struct Case {
        const char* label;
        std::wstring now;
        std::wstring target;
        std::wstring text;
        std::wstring expected;
    };
    const Case cases[] = {
        {"no now-directory: all six vanish", L"", L"D:\\x\\y.txt",
         L"a?Drive??Dir??NowDir??nowdir??TargetDir??TargetDrive?b", L"ab"},
        {"with a now-directory", L"C:\\Work\\", L"D:\\dir\\file.txt", L"?Drive?|?Dir?|?NowDir?|?nowdir?|?TargetDir?",
         L"D:|\\dir\\|\"C:\\Work\"|C:\\Work|"},
        {"a drive root keeps its separator", L"C:\\", L"", L"?NowDir??nowdir?", L"\"C:\\\"C:\\"},
        {"a network target has no drive", L"C:\\w", L"\\\\srv\\share\\f", L"[?Drive?][?Dir?]", L"[][\\\\srv\\share\\]"},
        {"names compare with case", L"C:\\w", L"", L"?NOWDIR? ?drive?", L"?NOWDIR? ?drive?"},
        {"empty text", L"C:\\w", L"", L"", L""},
    };
    for (const auto& c : cases) {
        std::wstring text = c.text;
        ExpandPlaceMacros(c.now, c.target, text);
        EXPECT_EQ(c.expected, text) << c.label;
    }
}

TEST_F(MacroExpansionTest, ItemMacros) {
    struct Case {
        const char* label;
        std::wstring item;
        std::wstring text;
        std::wstring expected;
    };
    const std::wstring all =
        L"?SelFile?|?selfile?|?FileName?|?Name?|?Ext?|?filename?|?name?|?ext?|?selpath?|?SelPath?|?SelParent?";
    const Case cases[] = {
        {"all eleven", L"C:\\Data\\report.txt", all,
         L"\"C:\\Data\\report.txt\"|C:\\Data\\report.txt|report.txt|report|.txt|\"report.txt\"|\"report\"|\".txt\"|"
         L"\"C:\\Data\\\"|C:\\Data\\|C:\\Data"},
        {"no extension", L"C:\\a.b\\file", L"[?Ext?][?ext?][?Name?]", L"[][\"\"][file]"},
        {"only a point", L"C:\\d\\.txt", L"[?Name?][?Ext?]", L"[][.txt]"},
        {"no directory", L"file.txt", L"[?SelPath?][?SelParent?][?selpath?]", L"[][][\"\"]"},
        {"a value holding a later macro is expanded again", L"C:\\?Name?\\x.y", L"?selfile?", L"C:\\x\\x.y"},
        {"other case is no macro", L"C:\\a.txt", L"?SELFILE? ?fileName?", L"?SELFILE? ?fileName?"},
        {"empty text", L"C:\\a.txt", L"", L""},
    };
    for (const auto& c : cases) {
        std::wstring text = c.text;
        ExpandItemMacros(c.item, text);
        EXPECT_EQ(c.expected, text) << c.label;
    }
}

TEST_F(MacroExpansionTest, LongItemPathsTakeTheirShortForm) {
    const std::wstring directory = L"C:\\" + std::wstring(130, L'd');
    const std::wstring withShort = directory + L"\\" + std::wstring(122, L'f') + L".txt";  // 260 characters
    const std::wstring withoutShort = directory + L"\\" + std::wstring(122, L'g') + L".txt";
    const std::wstring missing = directory + L"\\" + std::wstring(122, L'h') + L".txt";
    fake.files().AddFile(withShort, std::string_view("x"));
    fake.files().AddFile(withoutShort, std::string_view("x"));
    fake.files().SetShortName(directory, L"DDDDDD~1");
    fake.files().SetShortName(withShort, L"FFFFFF~1.TXT");
    ASSERT_EQ(260u, withShort.size());
    struct Case {
        const std::wstring& item;
        std::wstring expected;
    };
    const Case cases[] = {
        {withShort, L"C:\\DDDDDD~1\\FFFFFF~1.TXT"},
        {withoutShort, L"C:\\DDDDDD~1\\" + std::wstring(122, L'g') + L".txt"},
        {missing, missing},
    };
    for (const auto& c : cases) {
        std::wstring text = L"?SelFile??selfile?";
        ExpandItemMacros(c.item, text);
        EXPECT_EQ(L"\"" + c.expected + L"\"" + c.expected, text);
    }
    std::wstring name = L"?FileName?";
    ExpandItemMacros(withShort, name);
    EXPECT_EQ(std::wstring(122, L'f') + L".txt", name) << "only the path itself is shortened";
    std::wstring shorter = L"?selfile?";
    ExpandItemMacros(directory, shorter);
    EXPECT_EQ(directory, shorter) << "below 260 characters the path stays";
}

TEST_F(MacroExpansionTest, SplittingAnItemPath) {
    struct Case {
        std::wstring path;
        PathParts parts;
    };
    const Case cases[] = {
        {L"", {}},
        {L"C:\\x\\y.z", {L"C:", L"\\x\\", L"y", L".z"}},
        {L"C:\\y", {L"C:", L"\\", L"y", L""}},
        {L"file.tar.gz", {L"", L"", L"file.tar", L".gz"}},
        {L"\\\\server\\share\\f.x", {L"", L"\\\\server\\share\\", L"f", L".x"}},
        {L"a\\b", {L"a\\", L"", L"b", L""}},
        {L"ab\\cd\\e", {L"ab", L"\\cd\\", L"e", L""}},
        {L"1\\b", {L"", L"1\\", L"b", L""}},
        {L"C:/x/y.z", {L"", L"", L"C:/x/y", L".z"}},
        {L"C:\\dir.d\\", {L"C:", L"\\dir.d\\", L"", L""}},
    };
    for (const auto& c : cases) {
        const PathParts parts = SplitItemPath(c.path);
        EXPECT_EQ(c.parts.drive, parts.drive) << testing::PrintToString(c.path);
        EXPECT_EQ(c.parts.directory, parts.directory) << testing::PrintToString(c.path);
        EXPECT_EQ(c.parts.name, parts.name) << testing::PrintToString(c.path);
        EXPECT_EQ(c.parts.extension, parts.extension) << testing::PrintToString(c.path);
    }
}

TEST_F(MacroExpansionTest, ContainsItemMacro) {
    EXPECT_TRUE(ContainsItemMacro(L"open ?SelParent? now"));
    EXPECT_TRUE(ContainsItemMacro(L"?ext?"));
    EXPECT_FALSE(ContainsItemMacro(L"?SelectedCount? ?Date? ?NAME? ?Sel File?"));
    EXPECT_FALSE(ContainsItemMacro(L""));
}

TEST_F(MacroExpansionTest, TheWholeExpansionInItsOrder) {
    fake.environment().SetVariable(L"TEMP", L"C:\\Temp");
    variables.Set(L"TARGET", L"?SelFile?");
    variables.Set(L"WHERE", L"%Script_dir%");
    selection = {L"C:\\one.txt", L"C:\\two.log"};
    struct Case {
        const char* label;
        std::wstring text;
        int32_t itemIndex;
        bool trim;
        std::wstring expected;
    };
    const std::wstring script = kScriptDirectory;
    const Case cases[] = {
        {"outside a loop item macros stay", L"?SelFile? ?ext?", -1, false, L"?SelFile? ?ext?"},
        {"inside a loop they are the item's", L"?SelFile? ?ext?", 1, false, L"\"C:\\two.log\" \".log\""},
        {"a variable's value is expanded", L"TARGET", 0, false, L"\"C:\\one.txt\""},
        {"variables come before directories", L"WHEREx.txt", -1, false, script + L"x.txt"},
        {"directory macros compare with case", L"%script_dir%", -1, false, L"%script_dir%"},
        {"environment names in any case", L"%temp%\\?Year?", -1, false, L"C:\\Temp\\2024"},
        {"the other directories", L"%User_dir%|%Menu_dir%|%App_Dir%|%CMD_Dir%", -1, false,
         L"C:\\Users\\tester\\AppData\\Local\\Qor\\|C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\|C:\\Qor\\|"
         L"C:\\Qor\\command\\Default\\"},
        {"names this program leaves", L"%Focus_Item%%window.top%", -1, false, L"%Focus_Item%%window.top%"},
        {"now-directory macros vanish", L" a?NowDir?b ", -1, false, L" ab "},
        {"trimmed when asked", L" \ta?NowDir?b \t", 0, true, L"ab"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, Expand(c.text, c.itemIndex, c.trim)) << c.label;
}

TEST_F(MacroExpansionTest, VariablesResolveInRoundsWithALimit) {
    struct Case {
        const char* label;
        std::vector<std::pair<std::wstring, std::wstring>> entries;
        std::wstring text;
        std::wstring expected;
    };
    const Case cases[] = {
        {"an index through another variable", {{L"i", L"2"}, {L"a[2]", L"two"}}, L"=a[i]=", L"=two="},
        {"inside words, with case", {{L"n", L"N"}}, L"none Name", L"NoNe Name"},
        {"a name equal to its value is left", {{L"x", L"x"}}, L"x", L"x"},
        {"a circular pair stops", {{L"p", L"q"}, {L"q", L"p"}}, L"p", L"p"},
        {"a growing value stops after ten rounds", {{L"g", L"gg"}}, L"g", std::wstring(1024, L'g')},
        {"no variables", {}, L"abc", L"abc"},
    };
    for (const auto& c : cases) {
        VariableTable table;
        for (const auto& [name, value] : c.entries) table.Set(name, value);
        std::wstring text = c.text;
        ExpandVariables(table, text);
        EXPECT_EQ(c.expected, text) << c.label;
    }
}

}  // namespace
