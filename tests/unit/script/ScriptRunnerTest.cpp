#include <gtest/gtest.h>

#include "unit/script/ScriptFixture.h"

namespace {

using platform::fake::SentCopyData;

class ScriptRunnerTest : public ScriptFixture {};

// Include lines are what runs so far: their failures show which lines ran and what their paths became.
TEST_F(ScriptRunnerTest, WhichLinesRun) {
    struct Case {
        const char* label;
        std::vector<std::wstring> lines, messages;
    };
    const std::wstring dir = kScriptDirectory;
    // clang-format off
    const Case cases[] = {
        {"include with its path trimmed", {L"include =  C:\\a.txt  "}, {L"Cannot read C:\\a.txt"}},
        {"word in any case, no blanks", {L"INCLUDE=C:\\a.txt", L"\tInclude\t=\tC:\\b.txt"},
         {L"Cannot read C:\\a.txt", L"Cannot read C:\\b.txt"}},
        {"comments and blank lines", {L"// include = C:\\a.txt", L"", L"   "}, {}},
        {"a label line runs as what it is", {L"include = C:\\a.txt:"}, {L"Cannot read C:\\a.txt:"}},
        {"unknown lines pass in silence", {L"frobnicate = 1", L"include", L"include C:\\a.txt"}, {}},
        {"the script's own macros", {L"include = ?ScriptPath?x?SelectedCount?\\?ScriptName?"},
         {L"Cannot read " + dir + L"x2\\run.txt"}},
        {"an overlong line ends the script",
         {L"include = C:\\a.txt", std::wstring(32767, L'x'), L"include = C:\\b.txt"}, {L"Cannot read C:\\a.txt"}},
    };
    // clang-format on
    selection = {L"C:\\one.txt", L"C:\\two.txt"};
    for (const auto& c : cases) {
        fake.prompts().Clear();
        EXPECT_EQ(0, Run(AddScript(L"run.txt", c.lines))) << c.label;
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }
}

TEST_F(ScriptRunnerTest, FilesThatCannotBeRead) {
    fake.files().AddFile(L"C:\\empty.txt", std::vector<uint8_t>{});
    fake.files().AddFile(L"C:\\mark.txt", std::vector<uint8_t>{0xFF, 0xFE});
    fake.files().AddFile(L"C:\\one.txt", Utf16Bytes(L"include = C:\\missing.txt"));
    EXPECT_EQ(0, Run(L"C:\\nowhere.txt"));
    EXPECT_EQ(0, Run(L"C:\\empty.txt"));
    EXPECT_EQ(0, Run(L"C:\\mark.txt")) << "two bytes were read: no message, no line";
    EXPECT_EQ(0, Run(L"C:\\one.txt")) << "no byte order mark and no line end";
    EXPECT_EQ((std::vector<std::wstring>{L"Cannot read C:\\nowhere.txt", L"Cannot read C:\\empty.txt",
                                         L"Cannot read C:\\missing.txt"}),
              Messages());
    for (const auto& shown : fake.prompts().shown()) EXPECT_EQ(platform::kStyleOk, shown.style);
}

// Without a line end the longest last line still runs; one unit longer is taken for the end of the file.
TEST_F(ScriptRunnerTest, TheLongestLastLineWithoutALineEnd) {
    for (const size_t length : {size_t{32767}, size_t{32768}}) {
        const std::wstring last = L"x = &" + std::wstring(length - 5, L'a');
        fake.files().AddFile(L"C:\\long.txt", Utf16Bytes(L"var x = b\r\n" + last, true));
        VariableTable variables;
        Run(L"C:\\long.txt", &variables);
        EXPECT_EQ(length == 32767 ? length - 5 + 1 : 1, variables.Find(L"x")->size()) << length;
    }
}

// Labels are the script's own: one twice (blanks and tabs trimmed) runs nothing of that script.
TEST_F(ScriptRunnerTest, IncludedScriptsShareTablesAndSelectionButNotLabels) {
    VariableTable variables;
    variables.Set(L"NAME", L"grand");
    selection = {L"C:\\one.txt", L"C:\\two.txt", L"C:\\three.txt"};
    AddScript(L"child.txt", {L"top:", L"include = C:\\NAME\\?SelectedCount?.txt", L"include = ?ScriptPath?grand.txt"});
    AddScript(L"grand.txt", {L"dup:", L"include = C:\\never.txt", L"\t dup :"});
    const std::wstring parent =
        AddScript(L"parent.txt", {L"top:", L"include = %Script_dir%child.txt", L"include = C:\\after.txt"});
    EXPECT_EQ(0, Run(parent, &variables));
    EXPECT_EQ((std::vector<std::wstring>{L"Cannot read C:\\grand\\3.txt", L"This label is already in use.\ndup :",
                                         L"Cannot read C:\\after.txt"}),
              Messages());
}

// Nothing is traced without a debug line or without the window at the start; a script is announced
// again when the parent goes on, and comments and blank lines are left out.
TEST_F(ScriptRunnerTest, TheTraceWindowHearsOfScriptsLinesAndValues) {
    const std::wstring child = AddScript(L"child.txt", {L"debug"});
    EXPECT_EQ(0, Run(child));
    fake.windows().SetTitledWindow(L"Qor Script Debugger", 0x77);
    EXPECT_EQ(0, Run(child)) << "only the trace window's own title counts";
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);
    const std::wstring plain = AddScript(L"plain.txt", {L"x = 1"});
    EXPECT_EQ(0, Run(AddScript(L"quiet.txt", {L"include = " + plain, L"EOF", L"debug"})));
    EXPECT_TRUE(fake.windows().copies().empty());

    const std::wstring parent = AddScript(
        L"parent.txt", {L"  DeBuG\t", L"// x", L"include = " + child, L"var h = 0x10", L"var a[2]", L"h = &y"});
    EXPECT_EQ(0, Run(parent));
    auto report = [](uint32_t code, const std::wstring& text) {
        return SentCopyData{0x51, 0, code, text, static_cast<uint32_t>(text.size() * 8 + 8)};
    };
    EXPECT_EQ((std::vector<SentCopyData>{report(1, parent), report(2, L"3"), report(1, child), report(1, parent),
                                         report(2, L"3"), report(2, L"4"), report(10, L"h\t"), report(10, L"h\t16"),
                                         report(2, L"5"), report(10, L"a[0]\t"), report(10, L"a[1]\t"), report(2, L"6"),
                                         report(10, L"h\t16y")}),
              fake.windows().copies());
}

// What the shared table holds after each line: included scripts and the caller see it.
TEST_F(ScriptRunnerTest, OptionLinesWriteTheSharedTable) {
    // clang-format off
    struct Case { std::wstring line; const wchar_t* key; const wchar_t* kept; };
    const Case cases[] = {
        {L"Timeout = 5000ms", L"timeout", L"5000"},                {L"timeout = v", L"timeout", L"42"},
        {L"showwindow =", L"showwindow", L"0"},                    {L"multicommandmode = 2", L"multicommandmode", L"0"},
        {L"shiftsilentmode = 01", L"shiftsilentmode", L"1"},       {L"checkgrammar =", L"checkgrammar", L"0"},
        {L"checkgrammar = 1", L"checkgrammar", L"1"},
        {L"checkgrammar = edit ?ErrorLine? v", L"checkgrammar", L"edit ?ErrorLine? 42"},
        {L"bootdir =  %Script_dir%v ", L"bootdir", L"C:\\Users\\tester\\AppData\\Local\\Qor\\Script\\42"},
        {L"filter = txt,v", L"filter", L"txt,42"},                 {L"openmode = 3", L"openmode", L"3"},
        {L"commandlineoption = -v ?SelFile?", L"commandlineoption", L"-42 ?SelFile?"},
        {L"icon = C:\\a.ico", L"icon", nullptr},
    };
    // clang-format on
    for (const Case& c : cases) {
        VariableTable shared;
        shared.Set(L"v", L"42");
        RunOptionTable options;
        FillRunOptionDefaults(options);
        EXPECT_EQ(0, Run(AddScript(L"options.txt", {c.line}), &shared, &options));
        const std::wstring* kept = options.Find(c.key);
        EXPECT_EQ(c.kept ? std::wstring(c.kept) : L"<none>", kept ? *kept : L"<none>")
            << testing::PrintToString(c.line);
    }
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
