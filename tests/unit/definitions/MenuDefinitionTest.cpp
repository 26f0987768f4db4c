#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "definitions/CommandCatalog.h"
#include "definitions/MenuDefinition.h"
#include "platform/fake/FakePlatform.h"
#include "settings/UserDirectories.h"
#include "unit/Utf16.h"
#include "unit/support/VectorMenuRows.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;

constexpr const wchar_t* kMenuFile = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\Test.txt";
constexpr MenuBuilder::Menu kRoot = 100;

// Every builder call as text: "menu+text#id" an item, "menu-" a separator, "menu>popup text" a popup.
class RecordingBuilder : public MenuBuilder {
public:
    Menu CreatePopup() override { return ++popups; }
    void AppendItem(Menu menu, const std::wstring& text, uint32_t id) override {
        Record(std::to_wstring(menu) + L"+" + text + L"#" + std::to_wstring(id));
    }
    void AppendSeparator(Menu menu) override { Record(std::to_wstring(menu) + L"-"); }
    void AppendPopup(Menu menu, Menu popup, const std::wstring& text) override {
        Record(std::to_wstring(menu) + L">" + std::to_wstring(popup) + L" " + text);
    }
    void Record(const std::wstring& call) { calls += (calls.empty() ? L"" : L"|") + call; }

    Menu popups = 0;
    std::wstring calls;
};

std::wstring Repeat(const std::wstring& line, int count) {
    std::wstring text;
    for (int i = 0; i < count; ++i) text += line;
    return text;
}

class MenuDefinitionTest : public testing::Test {
protected:
    MenuDefinitionTest() { fake.files().AddDirectory(L"C:\\Users\\tester\\AppData\\Local\\Qor\\Menu"); }

    FakePlatform fake;
    UserDirectories directories;
};

TEST_F(MenuDefinitionTest, ParserLineForms) {
    const std::wstring self = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\Test.txt";
    const std::wstring many = Repeat(L"SCRIPT\tS\ta.txt\r\n", 701) + L"MENUITEM\tLast\t7\r\nOPEN\tGone\tb\r\n";
    // clang-format off
    struct Case { const char* what; std::wstring file; bool hasParent; std::wstring calls;
                  std::vector<std::wstring> commands; MenuPosition position; };
    const Case cases[] = {
        {"description, items, separator; no byte order mark needed; fields trimmed",
         L"Menu of mine\r\n  MENUITEM \t Open \t 35900 \r\nSEPARATOR\nmenuitem\tx\t12abc\rMenuItem\tneg\t-1",
         false, L"100+Open#35900|100-|100+x#12|100+neg#4294967295", {}, MenuPosition::Desktop},
        {"popups nest, lower-case end and separator are no keywords, a popup left open is fine",
         L"POPUP\tP\r\n\tPOPUP\tQ\r\n\t\tMENUITEM\ta\t1\r\n\tEND\r\n\tend\r\n\tseparator\r\n\tMENUITEM\tb\t2\r\n",
         false, L"100>1 P|1>2 Q|2+a#1|1+b#2", {}, MenuPosition::Desktop},
        {"a surplus END ends the file", L"MENUITEM\ta\t1\r\nEND\r\nMENUITEM\tb\t2\r\n", false, L"100+a#1", {},
         MenuPosition::Desktop},
        {"fields are counted: MENUITEM with two, POPUP with three, four fields, tab lists",
         L"MENUITEM\ta\r\nPOPUP\tp\tq\r\nMENUITEM\ta\t1\t2\r\nDROPTABLIST\r\nCOPYTABLIST\r\nMOVETABLIST\r\nDIRECTORY\tC:\\\r\n",
         false, L"", {}, MenuPosition::Desktop},
        {"\\t becomes a tab in three-field text only",
         L"MENUITEM\tCopy\\tCtrl+C\t57634\r\nPOPUP\tA\\tB\r\nEND\r\nWILDCARD\tF\\tx\r\n", false,
         L"100+Copy\tCtrl+C#57634|100>1 A\\tB|100+F\\tx#62300", {L"W"}, MenuPosition::Desktop},
        {"encoded commands by prefix, targets expanded, the file itself for the editors",
         L"SCRIPT\ts\t%Script_dir%a.txt\r\ndropopen\td\tD:\\x\r\nOPEN\to\to\r\nNEW\tn\tn\r\nJUMP\tj\tj\r\n"
         L"MULTIPLE\tm\t1,2\r\nWILDCARD\tw\texe;txt\r\nEXECUTE\tx\tcmd /c\r\nEDIT\te\r\nMENUEDIT\ta\r\nNOTEPAD\tp\r\n"
         L"Wildcard\tw2\r\nDIR_SCRIPT\tx.txt\r\nDIR_FILE\tON\r\n",
         false,
         L"100+s#62300|100+d#62301|100+o#62302|100+n#62303|100+j#62304|100+m#62305|100+w#62306|100+x#62307|"
         L"100+e#62308|100+a#62309|100+p#62310|100+w2#62311",
         {L"SC:\\Users\\tester\\AppData\\Local\\Qor\\Script\\a.txt", L"DD:\\x", L"Oo", L"Nn", L"Jj", L"M1,2",
          L"Wexe;txt", L"Xcmd /c", L"E" + self, L"A" + self, L"P" + self, L"W"},
         MenuPosition::Desktop},
        {"the last position word recognised wins", L"POSITION\tmouse\r\nPOSITION\tsomewhere\r\n", false, L"", {},
         MenuPosition::Mouse},
        {"PARENT counts only with a parent", L"POSITION\tMAIN\r\nPOSITION\tPARENT\r\n", false, L"", {},
         MenuPosition::Main},
        {"PARENT with a parent; PAERNT is no position", L"POSITION\tparent\r\nPOSITION\tPAERNT\r\n", true, L"", {},
         MenuPosition::Parent},
        {"DESKTOP", L"POSITION\tMOUSE\r\nPOSITION\tDesktop\r\n", true, L"", {}, MenuPosition::Desktop},
        {"a line over 32768 units ends the file",
         L"MENUITEM\ta\t1\r\n" + std::wstring(32769, L'x') + L"\r\nMENUITEM\tb\t2\r\n", false, L"100+a#1", {},
         MenuPosition::Desktop},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fake.files().AddFile(kMenuFile, Utf16Bytes(c.file, true));
        RecordingBuilder builder;
        MenuPosition position = MenuPosition::Mouse;
        std::vector<std::wstring> commands{L"left over"};
        EXPECT_TRUE(ParseMenuFile(kMenuFile, builder, kRoot, &position, c.hasParent, directories, commands));
        EXPECT_EQ(c.calls, builder.calls);
        EXPECT_EQ(c.commands, commands);
        EXPECT_EQ(c.position, position);
    }

    // Item 701 of the encoded kinds is left out, a MENUITEM still goes in.
    fake.files().AddFile(kMenuFile, Utf16Bytes(many));
    RecordingBuilder builder;
    std::vector<std::wstring> commands;
    EXPECT_TRUE(ParseMenuFile(kMenuFile, builder, kRoot, nullptr, false, directories, commands));
    EXPECT_EQ(kMenuCommandLimit, commands.size());
    EXPECT_TRUE(builder.calls.ends_with(L"100+S#62999|100+Last#7")) << builder.calls.substr(builder.calls.size() - 40);
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(MenuDefinitionTest, UnreadableFileIsTold) {
    fake.files().AddFile(kMenuFile, std::vector<uint8_t>{});
    for (const std::wstring& path : {std::wstring(kMenuFile), std::wstring(L"C:\\nowhere\\Menu.txt")}) {
        RecordingBuilder builder;
        std::vector<std::wstring> commands{L"old"};
        EXPECT_FALSE(ParseMenuFile(path, builder, kRoot, nullptr, true, directories, commands));
        EXPECT_TRUE(commands.empty());
        EXPECT_EQ(ShownMessage({L"Cannot open " + path, platform::kStyleOk}), fake.prompts().shown().back());
    }
}

TEST_F(MenuDefinitionTest, EditorLoadsEveryLine) {
    // clang-format off
    struct Case { const char* what; std::wstring file; std::vector<MenuLine> rows; };
    const Case cases[] = {
        {"empty lines stay, the end of the file adds none", L"A\r\n\r\n\tB\tb\r\n",
         {{L"A"}, {}, {L"B", L"b"}}},
        {"last line without an end", L"A\r\nB", {{L"A"}, {L"B"}}},
        {"further tabs stay in the target, inner blanks stay", L"OPEN\t\tx\t y \r\nMENUITEM\t a \t1",
         {{L"OPEN", L"", L"x\t y"}, {L"MENUITEM", L" a ", L"1"}}},
        {"byte order marks vanish anywhere, then the line is trimmed", L"\uFEFF \uFEFFPOPUP\tP\uFEFF\r\n",
         {{L"POPUP", L"P"}}},
        {"a byte order mark alone", L"", {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fake.files().AddFile(kMenuFile, Utf16Bytes(c.file, true));
        VectorMenuRows rows({{L"stale"}}, 0);
        LoadMenuRows(rows, kMenuFile);
        EXPECT_EQ(c.rows, rows.lines);
    }
}

TEST_F(MenuDefinitionTest, WriterIndentsByPopups) {
    // clang-format off
    struct Case { const char* what; std::vector<MenuLine> rows; std::wstring text; };
    const Case cases[] = {
        {"nothing but the byte order mark", {}, L""},
        {"popups indent what follows, END closes before its own line",
         {{L"Description"}, {L"POPUP", L"P"}, {L"POPUP", L"Q"}, {L"MENUITEM", L"a", L"1"}, {L"END"}, {}, {L"END"},
          {L"SEPARATOR"}},
         L"Description\r\nPOPUP\tP\r\n\tPOPUP\tQ\r\n\t\tMENUITEM\ta\t1\r\n\tEND\r\n\r\nEND\r\nSEPARATOR\r\n"},
        {"lower case counts, the depth never goes below 0",
         {{L"end"}, {L"END"}, {L"popup", L"p"}, {L"x"}, {L"End"}, {L"y"}},
         L"end\r\nEND\r\npopup\tp\r\n\tx\r\nEnd\r\ny\r\n"},
        {"empty texts are left out, so a target moves up; the check is not saved",
         {{L"MENUITEM", L"", L"5", L"Exist:"}, {L"OPEN", L"o", L"", L"x"}},
         L"MENUITEM\t5\r\nOPEN\to\r\n"},
        {"tabs go from the command, a line with no command stays empty",
         {{L"PO\tPUP", L"p"}, {L"\t", L"lost", L"too"}, {L"x"}},
         L"POPUP\tp\r\n\r\n\tx\r\n"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Utf16Bytes(c.text, true), MenuFileBytes(c.rows));
        EXPECT_TRUE(SaveMenuRows(VectorMenuRows(c.rows), kMenuFile));
        std::vector<uint8_t> written;
        ASSERT_TRUE(fake.files().ReadFile(kMenuFile, written));
        EXPECT_EQ(Utf16Bytes(c.text, true), written);
    }
}

TEST_F(MenuDefinitionTest, MissingFolderOpensEmptyAndCannotBeSaved) {
    const std::wstring path = L"C:\\nowhere\\Menu.txt";
    VectorMenuRows rows;
    LoadMenuRows(rows, path);
    EXPECT_EQ(0, rows.Count());
    rows.lines = {{L"MENUITEM", L"a", L"1"}};
    EXPECT_FALSE(SaveMenuRows(rows, path));
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(MenuDefinitionTest, SampleMenusSurviveLoadAndSave) {
    const std::filesystem::path folder = std::filesystem::path(OPTION_SOURCE_DIR) / "sample" / "User" / "Menu";
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path().filename().string());
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::vector<uint8_t> bytes(std::istreambuf_iterator<char>(stream), {});
        fake.files().AddFile(kMenuFile, bytes);
        EXPECT_EQ(bytes, MenuFileBytes(ReadMenuLines(kMenuFile)));
        RecordingBuilder builder;
        std::vector<std::wstring> commands;
        EXPECT_TRUE(ParseMenuFile(kMenuFile, builder, kRoot, nullptr, false, directories, commands));
        EXPECT_FALSE(builder.calls.empty());
        ++files;
    }
    EXPECT_GE(files, 3);
}

TEST(MenuRowActions, ActOnTheSelection) {
    const MenuLine a{L"A", L"a", L"1", L"checked"}, b{L"B"}, c{L"C"}, n{L"N", L"n", L"2"};
    // clang-format off
    struct Case { const char* what; std::vector<MenuLine> rows; int selected;
                  std::function<void(MenuRows&)> act; std::vector<MenuLine> after; int selectedAfter; };
    const Case cases[] = {
        {"insert behind the selection", {a, b}, 0, [&](MenuRows& r) { InsertMenuRow(r, n); }, {a, n, b}, 1},
        {"insert at the top without one", {a, b}, -1, [&](MenuRows& r) { InsertMenuRow(r, n); }, {n, a, b}, 0},
        {"insert into an empty list", {}, -1, [&](MenuRows& r) { InsertMenuRow(r, n); }, {n}, 0},
        {"delete selects the row now there", {a, b, c}, 1, DeleteMenuRow, {a, c}, 1},
        {"delete of the last selects the new last", {a, b, c}, 2, DeleteMenuRow, {a, b}, 1},
        {"delete of the only row selects nothing", {a}, 0, DeleteMenuRow, {}, -1},
        {"delete without a selection", {a}, -1, DeleteMenuRow, {a}, -1},
        {"up swaps every column", {b, a}, 1, [](MenuRows& r) { MoveMenuRow(r, -1); }, {a, b}, 0},
        {"up on the first row", {a, b}, 0, [](MenuRows& r) { MoveMenuRow(r, -1); }, {a, b}, 0},
        {"down", {a, b, c}, 1, [](MenuRows& r) { MoveMenuRow(r, 1); }, {a, c, b}, 2},
        {"down on the last row", {a, b}, 1, [](MenuRows& r) { MoveMenuRow(r, 1); }, {a, b}, 1},
        {"paste of an empty clipboard", {a}, 0, [](MenuRows& r) { PasteMenuRow(r, {L"", L"", L"", L"x"}); }, {a}, 0},
        {"copy takes three columns, paste inserts them behind the selection", {a, b}, 0,
         [](MenuRows& r) { MenuLine clip; if (CopyMenuRow(r, clip)) PasteMenuRow(r, clip); },
         {a, {L"A", L"a", L"1"}, b}, 1},
        {"copy without a selection leaves the clipboard", {a}, -1,
         [&](MenuRows& r) { MenuLine clip = n; EXPECT_FALSE(CopyMenuRow(r, clip)); PasteMenuRow(r, clip); },
         {n, a}, 0},
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

TEST_F(MenuDefinitionTest, CheckOfOneLine) {
    fake.files().AddFile(L"C:\\Data\\a.txt", "x");
    fake.files().AddFile(L"C:\\Users\\tester\\AppData\\Local\\Qor\\ExternalDefCommand.txt",
                         Utf16Bytes(L"40001\t\tN--\tx\tFirst\r\n40002\t\tN--\tx\tSecond\r\n", true));
    CommandCatalog catalog;
    catalog.LoadCommandLists(L"C:\\Users\\tester\\AppData\\Local\\Qor\\");
    fake.prompts().Clear();
    const std::wstring longIds = Repeat(L"40001,", 50);
    // clang-format off
    struct Case { MenuLine line; std::wstring check; };
    const Case cases[] = {
        {{L"OPEN", L"x", L"C:\\Data\\a.txt"}, L"Exist:C:\\Data\\a.txt"},
        {{L"script", L"x", L"%Menu_dir%no.txt"}, L"Not found:C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\no.txt"},
        {{L"JUMP", L"x", L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"}, L"Virtual folder"},
        {{L"DIRECTORY", L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"}, L"Virtual item"},
        {{L"Directory", L"C:\\Data"}, L"Exist:C:\\Data"},
        {{L"DIR_SCRIPT", L"C:\\Data\\b.txt", L"C:\\Data\\a.txt"}, L"Not found:C:\\Data\\b.txt"},
        {{L"POSITION", L"PARENT"}, L"Syntax error(DESKTOP/PAERNT/MOUSE/MAIN)"},
        {{L"position", L"paernt"}, L""},
        {{L"POSITION", L"Mouse"}, L""},
        {{L"DIR_UP", L"on"}, L"Syntax error(ON/OFF)"},
        {{L"DIR_FILE", L"OFF"}, L""},
        {{L"HIDDEN_ITEM", L"maybe"}, L""},
        {{L"MenuItem", L"a", L"40002"}, L"Second"},
        {{L"MENUITEM", L"a", L"35000"}, L"Cannot get command string."},
        {{L"MENUITEM", L"a"}, L""},
        {{L"MULTIPLE", L"m", L"40001,,40002"}, L"First,---,Second"},
        {{L"MULTIPLE", L"m", longIds}, Repeat(L"First,", 41) + L"Firs"},
        {{L"<comment>", L"C:\\Data\\a.txt"}, L""},
        {{L"WILDCARD", L"w", L"C:\\Data\\a.txt"}, L""},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.check, CheckMenuLine(c.line, catalog, nullptr, directories))
            << testing::PrintToString(c.line.command);
    }
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST(MenuKeywords, LookupsOfTheCommandBoxAndTheLoadTest) {
    // clang-format off
    struct Case { std::wstring command; int row; bool refused; };
    const Case cases[] = {
        {L"popup", 4, false}, {L"HIDDEN_ITEM ", 23, false}, {L"HIDDEN_ITEM", 0, false}, {L"<Comment>", 0, false},
        {L"", 0, false}, {L"WildCard", kMenuKeywordWildcard, true}, {L"DIRECTORY", 18, false},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.row, FindMenuKeywordRow(c.command)) << testing::PrintToString(c.command);
        EXPECT_EQ(c.refused, MenuTestRefused(VectorMenuRows({{L"MENUITEM"}, {c.command}})))
            << testing::PrintToString(c.command);
    }
}

}  // namespace
