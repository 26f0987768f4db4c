#include <gtest/gtest.h>

#include "script/MacroExpansion.h"
#include "unit/script/ScriptFixture.h"

namespace {

class MacroExpansionTest : public ScriptFixture {
protected:
    VariableTable variables;
};

// Variables, directories, dates (one reading of the clock), places, then the item's; case counts but for
// the environment's names.
TEST_F(MacroExpansionTest, EachGroupInItsOrder) {
    fake.environment().SetVariable(L"TEMP", L"C:\\Temp");
    variables.Set(L"TARGET", L"?SelFile?");
    // An item path of 260 characters or more takes its short form where it has one.
    const std::wstring directory = L"C:\\" + std::wstring(130, L'd'), name = std::wstring(122, L'f') + L".txt";
    const std::wstring longPath = directory + L"\\" + name,
                       other = directory + L"\\" + std::wstring(122, L'g') + L".txt";
    fake.files().AddFile(longPath, std::string_view("x"));
    fake.files().AddFile(other, std::string_view("x"));
    fake.files().SetShortName(directory, L"DDDDDD~1");
    fake.files().SetShortName(longPath, L"FFFFFF~1.TXT");
    variables.Set(L"WHERE", L"%Script_dir%");
    struct Case {
        const char* label;
        std::wstring item;  // the loop's item; none outside a loop
        std::wstring now, target, text, expected;
    };
    const std::wstring script = kScriptDirectory;
    const std::wstring all =
        L"?SelFile?|?selfile?|?FileName?|?Name?|?Ext?|?filename?|?name?|?ext?|?selpath?|?SelPath?|?SelParent?";
    const Case cases[] = {
        {"a date fit for a file name", L"", L"", L"", L"log_?Date?_?Time?.txt", L"log_2024-03-05_14-07-09.txt"},
        {"the parts of the date", L"", L"", L"", L"?Year?|?Month?|?Day?|?Hour?|?Minute?|?Second?",
         L"2024|03|05|14|07|09"},
        {"weekday names and the locale's form", L"", L"", L"", L"?Week? ?WEEK? ?ShellTime?",
         L"Tue Tuesday 03/05/24 14:07:09"},
        {"every occurrence", L"", L"", L"", L"?Day??Day?", L"0505"},
        {"date names compare with case", L"", L"", L"", L"?date? ?TIME? ?week?", L"?date? ?TIME? ?week?"},
        {"no now-directory: all six places vanish", L"", L"", L"D:\\x\\y.txt",
         L"a?Drive??Dir??NowDir??nowdir??TargetDir??TargetDrive?b", L"ab"},
        {"places with a now-directory", L"", L"C:\\Work\\", L"D:\\dir\\file.txt",
         L"?Drive?|?Dir?|?NowDir?|?nowdir?|?TargetDir?", L"D:|\\dir\\|\"C:\\Work\"|C:\\Work|"},
        {"a drive root keeps its separator", L"", L"C:\\", L"", L"?NowDir??nowdir?", L"\"C:\\\"C:\\"},
        {"a network target has no drive", L"", L"C:\\w", L"\\\\srv\\share\\f", L"[?Drive?][?Dir?]",
         L"[][\\\\srv\\share\\]"},
        {"place names compare with case", L"", L"C:\\w", L"", L"?NOWDIR? ?drive?", L"?NOWDIR? ?drive?"},
        {"outside a loop item macros stay", L"", L"", L"", L"?SelFile? ?ext?", L"?SelFile? ?ext?"},
        {"all eleven of the item", L"C:\\Data\\report.txt", L"", L"", all,
         L"\"C:\\Data\\report.txt\"|C:\\Data\\report.txt|report.txt|report|.txt|\"report.txt\"|\"report\"|\".txt\"|"
         L"\"C:\\Data\\\"|C:\\Data\\|C:\\Data"},
        {"no extension", L"C:\\a.b\\file", L"", L"", L"[?Ext?][?ext?][?Name?]", L"[][\"\"][file]"},
        {"only a point", L"C:\\d\\.txt", L"", L"", L"[?Name?][?Ext?]", L"[][.txt]"},
        {"no directory", L"file.txt", L"", L"", L"[?SelPath?][?SelParent?][?selpath?]", L"[][][\"\"]"},
        {"an item holding a later macro is expanded again", L"C:\\?Name?\\x.y", L"", L"", L"?selfile?", L"C:\\x\\x.y"},
        {"a long path's short form, its name as it is", longPath, L"", L"", L"?SelFile??selfile?|?FileName?",
         L"\"C:\\DDDDDD~1\\FFFFFF~1.TXT\"C:\\DDDDDD~1\\FFFFFF~1.TXT|" + name},
        {"a long path without a short name of its own", other, L"", L"", L"?selfile?",
         L"C:\\DDDDDD~1\\" + std::wstring(122, L'g') + L".txt"},
        {"a long path that is missing stays", longPath + L"h", L"", L"", L"?selfile?", longPath + L"h"},
        {"below 260 characters a path stays", directory, L"", L"", L"?selfile?", directory},
        {"item names compare with case", L"C:\\a.txt", L"", L"", L"?SELFILE? ?fileName?", L"?SELFILE? ?fileName?"},
        {"a variable's value is expanded", L"C:\\one.txt", L"", L"", L"TARGET", L"\"C:\\one.txt\""},
        {"variables come before directories", L"", L"", L"", L"WHEREx.txt", script + L"x.txt"},
        {"directory macros compare with case", L"", L"", L"", L"%script_dir%", L"%script_dir%"},
        {"environment names in any case", L"", L"", L"", L"%temp%\\?Year?", L"C:\\Temp\\2024"},
        {"the other directories", L"", L"", L"", L"%User_dir%|%Menu_dir%|%App_Dir%|%CMD_Dir%",
         L"C:\\Users\\tester\\AppData\\Local\\Qor\\|C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\|C:\\Qor\\|"
         L"C:\\Qor\\command\\Default\\"},
        {"names this program leaves", L"", L"", L"", L"%Focus_Item%%window.top%", L"%Focus_Item%%window.top%"},
        {"empty text", L"C:\\a.txt", L"C:\\w", L"", L"", L""},
    };
    for (const auto& c : cases) {
        selection = {c.item};
        std::wstring text = c.text;
        ExpandScriptText(text, variables, c.now, c.target, selection, c.item.empty() ? -1 : 0, false, directories);
        EXPECT_EQ(c.expected, text) << c.label;
    }
    std::wstring text = L" \ta?NowDir?b \t";
    ExpandScriptText(text, variables, L"", L"", selection, 0, true, directories);
    EXPECT_EQ(L"ab", text) << "trimmed when asked";
    fake.environment().SetUtcOffset(10 * 3600);
    text = L"?Date? ?Time? ?WEEK?";
    ExpandDateMacros(text);
    EXPECT_EQ(L"2024-03-06 00-07-09 Wednesday", text) << "local time across midnight";
}

std::wstring Repeated(const std::wstring& piece, size_t times) {
    std::wstring text;
    for (size_t i = 0; i < times; ++i) text += piece;
    return text;
}

TEST_F(MacroExpansionTest, VariablesResolveInRoundsWithALimit) {
    struct Case {
        const char* label;
        std::vector<std::pair<std::wstring, std::wstring>> entries;
        std::wstring text, expected;
    };
    const Case cases[] = {
        {"an index through another variable", {{L"i", L"2"}, {L"a[2]", L"two"}}, L"=a[i]=", L"=two="},
        {"a name equal to its value is left", {{L"x", L"x"}}, L"x", L"x"},
        {"a circular pair stops", {{L"p", L"q"}, {L"q", L"p"}}, L"p", L"p"},
        {"a growing value stops after ten rounds", {{L"g", L"gg"}}, L"g", std::wstring(1024, L'g')},
        {"a long value's names are each put in",
         {{L"b", std::wstring(200000, L'a')}, {L"a", L"xy"}},
         L"<b>",
         L"<" + Repeated(L"xy", 200000) + L">"},
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
