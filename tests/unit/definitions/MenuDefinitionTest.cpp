#include <gtest/gtest.h>

#include <functional>

#include "definitions/CommandCatalog.h"
#include "definitions/MenuDefinition.h"
#include "platform/fake/FakePlatform.h"
#include "settings/UserDirectories.h"
#include "unit/Utf16.h"
#include "unit/support/VectorMenuRows.h"

namespace {

const std::wstring kUserDir = L"C:\\Users\\tester\\AppData\\Local\\Qor\\";
const std::wstring kMenuFile = kUserDir + L"Menu\\Test.txt";

// Every call as text: "menu+text#id" an item, "menu-" a separator, "menu>popup text" a popup.
struct RecordingBuilder : MenuBuilder {
    Menu CreatePopup() override { return ++popups; }
    void AppendItem(Menu m, const std::wstring& text, uint32_t id) override { Add(m, L"+" + text + L"#", id); }
    void AppendSeparator(Menu m) override { Add(m, L"-"); }
    void AppendPopup(Menu m, Menu popup, const std::wstring& text) override { Add(m, L">", popup, L" " + text); }
    void Add(Menu m, const std::wstring& what, int64_t number = -1, const std::wstring& text = L"") {
        calls += (calls.empty() ? L"" : L"|") + std::to_wstring(m) + what +
                 (number < 0 ? L"" : std::to_wstring(number)) + text;
    }
    Menu popups = 0;
    std::wstring calls;
};

std::wstring Repeat(const std::wstring& text, int count) {
    std::wstring all;
    while (count-- > 0) all += text;
    return all;
}

struct MenuDefinitionTest : testing::Test {
    MenuDefinitionTest() { fake.files().AddDirectory(kUserDir + L"Menu"); }
    platform::fake::FakePlatform fake;
    UserDirectories directories;
};

TEST_F(MenuDefinitionTest, ParserLineForms) {
    const std::wstring full = Repeat(L"SCRIPT\ts\tx\r\n", 699), self = kMenuFile;
    std::wstring fullCalls;
    for (int i = 0; i < 699; ++i) fullCalls += L"100+s#" + std::to_wstring(62300 + i) + L"|";
    std::vector<std::wstring> fullCommands(699, L"Sx");
    fullCommands.push_back(L"E" + self);
    using enum MenuPosition;
    // clang-format off
    struct Case { const char* what; std::wstring file; bool parent; std::wstring calls;
                  std::vector<std::wstring> commands; MenuPosition position = Desktop; };
    const Case cases[] = {
        {"no byte order mark; fields trimmed; ids unchecked", L"Mine\r\n MENUITEM \t Open \t 35900 \r\nSEPARATOR\n"
         L"menuitem\tx\t12abc\rMenuItem\tneg\t-1", false, L"100+Open#35900|100-|100+x#12|100+neg#4294967295", {}},
        {"popups nest; lower-case end and separator are no keywords; a popup may stay open", L"\uFEFFPOPUP\tP\r\n"
         L"\tPOPUP\tQ\r\n\t\tMENUITEM\ta\t1\r\n\tEND\r\n\tend\r\n\tseparator\r\n\tMENUITEM\tb\t2\r\n", false,
         L"100>1 P|1>2 Q|2+a#1|1+b#2", {}},
        {"a surplus END ends the file", L"MENUITEM\ta\t1\r\nEND\r\nMENUITEM\tb\t2\r\n", false, L"100+a#1", {}},
        {"field counts decide", L"MENUITEM\ta\r\nPOPUP\tp\tq\r\nMENUITEM\ta\t1\t2\r\nDROPTABLIST\r\nCOPYTABLIST\r\n"
         L"MOVETABLIST\r\nDIRECTORY\tC:\\\r\n", false, L"", {}},
        {"\\t becomes a tab in three fields only", L"MENUITEM\tCopy\\tCtrl+C\t5\r\nPOPUP\tA\\tB\r\nEND\r\n"
         L"WILDCARD\tF\\tx\r\n", false, L"100+Copy\tCtrl+C#5|100>1 A\\tB|100+F\\tx#62300", {L"W"}},
        {"encoded commands: prefix and expanded target, the file itself for the editors",
         L"SCRIPT\ts\t%Script_dir%a.txt\r\ndropopen\td\tD:\\x\r\nOPEN\to\to\r\nNEW\tn\tn\r\nJUMP\tj\tj\r\n"
         L"MULTIPLE\tm\t1,2\r\nWILDCARD\tw\texe;txt\r\nEXECUTE\tx\tcmd /c\r\nEDIT\te\r\nMENUEDIT\ta\r\nNOTEPAD\tp\r\n"
         L"Wildcard\tw2\r\nDIR_SCRIPT\tx.txt\r\nDIR_FILE\tON\r\n", false,
         L"100+s#62300|100+d#62301|100+o#62302|100+n#62303|100+j#62304|100+m#62305|100+w#62306|100+x#62307|"
         L"100+e#62308|100+a#62309|100+p#62310|100+w2#62311",
         {L"S" + kUserDir + L"Script\\a.txt", L"DD:\\x", L"Oo", L"Nn", L"Jj", L"M1,2", L"Wexe;txt", L"Xcmd /c",
          L"E" + self, L"A" + self, L"P" + self, L"W"}},
        {"item 701 of the encoded kinds is left out, a MENUITEM still goes in",
         full + L"EDIT\tlast\r\nOPEN\tgone\tx\r\nMENUITEM\tm\t7\r\n", false, fullCalls + L"100+last#62999|100+m#7", fullCommands},
        {"the last word recognised wins", L"POSITION\tmouse\r\nPOSITION\tsomewhere\r\n", false, L"", {}, Mouse},
        {"PARENT only with a parent", L"POSITION\tMAIN\r\nPOSITION\tPARENT\r\n", false, L"", {}, Main},
        {"PAERNT is none", L"POSITION\tDesktop\r\nPOSITION\tparent\r\nPOSITION\tPAERNT\r\n", true, L"", {}, Parent},
        {"DESKTOP", L"POSITION\tMOUSE\r\nPOSITION\tDesktop\r\n", true, L"", {}},
        {"a line over 32768 units ends the file", L"MENUITEM\ta\t1\r\n" + std::wstring(32769, L'x') +
         L"\r\nMENUITEM\tb\t2\r\n", false, L"100+a#1", {}},
        {"a file of zero bytes cannot be opened", L"", true, L"", {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fake.files().AddFile(kMenuFile, Utf16Bytes(c.file));
        RecordingBuilder builder;
        MenuPosition position = Mouse;
        std::vector<std::wstring> commands{L"left over"};
        EXPECT_EQ(!c.file.empty(), ParseMenuFile(kMenuFile, builder, 100, &position, c.parent, directories, commands));
        EXPECT_EQ(c.position, position);
        EXPECT_EQ(c.calls, builder.calls);
        EXPECT_EQ(c.commands, commands);
    }
    EXPECT_EQ(std::vector<platform::fake::ShownMessage>({{L"Cannot open " + kMenuFile, platform::kStyleOk}}),
              fake.prompts().shown());
}

TEST_F(MenuDefinitionTest, EditorLoadsEveryLineAndSavesWithIndentation) {
    // clang-format off
    struct Case { const char* what; std::wstring file; std::vector<MenuLine> rows; std::wstring saved; };
    const Case cases[] = {
        {"a byte order mark alone", L"\uFEFF", {}, L""},
        {"empty lines stay, the end adds none; popups indent what follows, END its own line",
         L"Mine\r\n\r\nPOPUP\tP\r\nPOPUP\tQ\r\nMENUITEM\ta\t1\r\nEND\r\n\r\nEND\r\nSEPARATOR",
         {{L"Mine"}, {}, {L"POPUP", L"P"}, {L"POPUP", L"Q"}, {L"MENUITEM", L"a", L"1"}, {L"END"}, {}, {L"END"},
          {L"SEPARATOR"}}, L"Mine\r\n\r\nPOPUP\tP\r\n\tPOPUP\tQ\r\n\t\tMENUITEM\ta\t1\r\n\tEND\r\n\r\nEND\r\nSEPARATOR\r\n"},
        {"lower case counts for the writer, the depth never goes below 0", L"end\nEND\n\t\tpopup\tp\nx\nEnd\ny\n",
         {{L"end"}, {L"END"}, {L"popup", L"p"}, {L"x"}, {L"End"}, {L"y"}}, L"end\r\nEND\r\npopup\tp\r\n\tx\r\nEnd\r\ny\r\n"},
        {"further tabs stay in the target; an empty text lets the target move up", L"OPEN\t\tx\t y \rMENUITEM\t a \t1",
         {{L"OPEN", L"", L"x\t y"}, {L"MENUITEM", L" a ", L"1"}}, L"OPEN\tx\t y\r\nMENUITEM\t a \t1\r\n"},
        {"byte order marks vanish anywhere before the trim", L"\uFEFF \uFEFFPOPUP\tP\uFEFF\r\n", {{L"POPUP", L"P"}},
         L"POPUP\tP\r\n"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fake.files().AddFile(kMenuFile, Utf16Bytes(c.file));
        VectorMenuRows rows(ReadMenuLines(kMenuFile));
        EXPECT_EQ(c.rows, rows.lines);
        EXPECT_TRUE(SaveMenuRows(rows, kMenuFile));
        std::vector<uint8_t> written;
        EXPECT_TRUE(fake.files().ReadFile(kMenuFile, written));
        EXPECT_EQ(Utf16Bytes(c.saved, true), written);
    }
    // Tabs go from the command; a line without one stays empty; the check is not saved.
    EXPECT_EQ(Utf16Bytes(L"POPUP\tp\r\n\r\n\tx\r\n", true),
              MenuFileBytes({{L"PO\tPUP", L"p", L"", L"Exist:"}, {L"\t", L"lost", L"too"}, {L"x"}}));
    // A folder that does not exist: an empty document that cannot be saved, without a word.
    EXPECT_TRUE(ReadMenuLines(L"C:\\nowhere\\Menu.txt").empty());
    EXPECT_FALSE(SaveMenuRows(VectorMenuRows({{L"x"}}), L"C:\\nowhere\\Menu.txt"));
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST(MenuRowActions, ActOnTheSelection) {
    const MenuLine a{L"A", L"a", L"1", L"checked"}, b{L"B"}, c{L"C"}, n{L"N", L"n", L"2"};
    const auto insert = [&](MenuRows& r) { InsertMenuRow(r, n); };
    const auto up = [](MenuRows& r) { MoveMenuRow(r, -1); };
    const auto down = [](MenuRows& r) { MoveMenuRow(r, 1); };
    // clang-format off
    struct Case { const char* what; std::vector<MenuLine> rows; int selected;
                  std::function<void(MenuRows&)> act; std::vector<MenuLine> after; int selectedAfter; };
    const Case cases[] = {
        {"insert behind the selection", {a, b}, 0, insert, {a, n, b}, 1},
        {"insert at the top without one", {a, b}, -1, insert, {n, a, b}, 0},
        {"delete selects the row now there", {a, b, c}, 1, DeleteMenuRow, {a, c}, 1},
        {"delete of the last selects the new last", {a, b, c}, 2, DeleteMenuRow, {a, b}, 1},
        {"delete of the only row selects nothing", {a}, 0, DeleteMenuRow, {}, -1},
        {"delete without a selection", {a}, -1, DeleteMenuRow, {a}, -1},
        {"up swaps every column", {b, a}, 1, up, {a, b}, 0},
        {"up on the first row", {a, b}, 0, up, {a, b}, 0},
        {"down", {a, b, c}, 1, down, {a, c, b}, 2},
        {"down on the last row", {a, b}, 1, down, {a, b}, 1},
        {"paste of an empty clipboard", {a}, 0, [](MenuRows& r) { PasteMenuRow(r, {L"", L"", L"", L"x"}); }, {a}, 0},
        {"copy takes three columns, paste puts them behind the selection", {a, b}, 0,
         [](MenuRows& r) { MenuLine clip; if (CopyMenuRow(r, clip)) PasteMenuRow(r, clip); }, {a, {L"A", L"a", L"1"}, b}, 1},
        {"copy without a selection leaves the clipboard", {a}, -1,
         [&](MenuRows& r) { MenuLine clip = n; EXPECT_FALSE(CopyMenuRow(r, clip)); PasteMenuRow(r, clip); }, {n, a}, 0},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.what);
        VectorMenuRows rows(k.rows, k.selected);
        k.act(rows);
        EXPECT_EQ(k.after, rows.lines);
        EXPECT_EQ(k.selectedAfter, rows.selected);
    }
}

TEST_F(MenuDefinitionTest, CheckOfOneLineAndTheLoadTest) {
    fake.files().AddFile(L"C:\\Data\\a.txt", "x");
    fake.files().AddFile(kUserDir + L"ExternalDefCommand.txt",
                         Utf16Bytes(L"40001\t\t\tx\tFirst\r\n40002\t\t\tx\tSecond"));
    CommandCatalog catalog;
    catalog.LoadCommandLists(kUserDir);
    fake.prompts().Clear();
    const std::wstring computer = L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
    const std::pair<MenuLine, std::wstring> cases[] = {
        {{L"OPEN", L"x", L"C:\\Data\\a.txt"}, L"Exist:C:\\Data\\a.txt"},
        {{L"script", L"x", L"%Menu_dir%no.txt"}, L"Not found:" + kUserDir + L"Menu\\no.txt"},
        {{L"JUMP", L"x", computer}, L"Virtual folder"},
        {{L"DIRECTORY", computer}, L"Virtual item"},
        {{L"DIR_SCRIPT", L"C:\\Data\\b.txt", L"C:\\Data\\a.txt"}, L"Not found:C:\\Data\\b.txt"},
        {{L"POSITION", L"PARENT"}, L"Syntax error(DESKTOP/PAERNT/MOUSE/MAIN)"},
        {{L"position", L"paernt"}, L""},
        {{L"DIR_UP", L"on"}, L"Syntax error(ON/OFF)"},
        {{L"DIR_FILE", L"OFF"}, L""},
        {{L"HIDDEN_ITEM", L"maybe"}, L""},
        {{L"MenuItem", L"a", L"40002"}, L"Second"},
        {{L"MENUITEM", L"a", L"35000"}, L"Cannot get command string."},
        {{L"MENUITEM", L"a"}, L""},
        {{L"MULTIPLE", L"m", L"40001,,40002"}, L"First,---,Second"},
        {{L"MULTIPLE", L"m", Repeat(L"40001,", 50)}, Repeat(L"First,", 41) + L"Firs"},
        {{L"<comment>", L"C:\\Data\\a.txt"}, L""},
        {{L"WILDCARD", L"w", L"C:\\Data\\a.txt"}, L""},
    };
    for (const auto& [line, check] : cases) {
        EXPECT_EQ(check, CheckMenuLine(line, catalog, nullptr, directories)) << testing::PrintToString(line);
        EXPECT_EQ(line.command == L"WILDCARD", MenuTestRefused(VectorMenuRows({{L"MENUITEM"}, line})));
    }
    // The command box finds rows without regard to case; the blank of HIDDEN_ITEM's keyword counts.
    for (const auto& [command, row] : {std::pair<std::wstring, int>{L"popup", 4},
                                       {L"HIDDEN_ITEM ", 23},
                                       {L"HIDDEN_ITEM", 0},
                                       {L"<Comment>", 0},
                                       {L"WildCard", 16}})
        EXPECT_EQ(row, FindMenuKeywordRow(command)) << command.size();
    EXPECT_TRUE(fake.prompts().shown().empty());
}

}  // namespace
