#include <gtest/gtest.h>

#include "script/MacroExpansion.h"
#include "unit/script/ScriptFixture.h"

namespace {

using platform::fake::SentCopyData;

class ScriptRunnerTest : public ScriptFixture {};

// A missing script shows its path: include lines are what runs so far, so their failures show which
// lines ran and what their paths became.
TEST_F(ScriptRunnerTest, WhichLinesRun) {
    struct Case {
        const char* label;
        std::vector<std::wstring> lines;
        std::vector<std::wstring> messages;
    };
    const std::wstring dir = kScriptDirectory;
    const Case cases[] = {
        {"include with its path trimmed", {L"include =  C:\\a.txt  "}, {L"Cannot read C:\\a.txt"}},
        {"word in any case, no blanks",
         {L"INCLUDE=C:\\a.txt", L"\tInclude\t=\tC:\\b.txt"},
         {L"Cannot read C:\\a.txt", L"Cannot read C:\\b.txt"}},
        {"comments and blank lines", {L"// include = C:\\a.txt", L"", L"   "}, {}},
        {"EOF ends the script", {L"include = C:\\a.txt", L"eof", L"include = C:\\b.txt"}, {L"Cannot read C:\\a.txt"}},
        {"a label line runs as what it is", {L"include = C:\\a.txt:"}, {L"Cannot read C:\\a.txt:"}},
        {"unknown lines pass in silence", {L"frobnicate = 1", L"include", L"include C:\\a.txt"}, {}},
        {"the script's own macros",
         {L"include = ?ScriptPath?x?SelectedCount?\\?ScriptName?"},
         {L"Cannot read " + dir + L"x2\\run.txt"}},
        {"directory and date macros",
         {L"include = %Script_dir%?Date?.txt"},
         {L"Cannot read " + dir + L"2024-03-05.txt"}},
        {"place macros vanish, item macros stay",
         {L"include = C:\\?NowDir??Drive?\\?SelFile?"},
         {L"Cannot read C:\\\\?SelFile?"}},
        {"an overlong line ends the script",
         {L"include = C:\\a.txt", std::wstring(32767, L'x'), L"include = C:\\b.txt"},
         {L"Cannot read C:\\a.txt"}},
    };
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

// The longest last line a script may end with, without a line end, still runs; one unit longer is
// taken for the end of the file.
TEST_F(ScriptRunnerTest, TheLongestLastLineWithoutALineEnd) {
    for (const size_t length : {size_t{32767}, size_t{32768}}) {
        const std::wstring last = L"x = &" + std::wstring(length - 5, L'a');
        fake.files().AddFile(L"C:\\long.txt", Utf16Bytes(L"var x = b\r\n" + last, true));
        VariableTable variables;
        Run(L"C:\\long.txt", &variables);
        EXPECT_EQ(length == 32767 ? length - 5 + 1 : 1, variables.Find(L"x")->size()) << length;
    }
}

TEST_F(ScriptRunnerTest, ALabelTwiceRunsNothing) {
    EXPECT_EQ(0, Run(AddScript(L"twice.txt", {L"include = C:\\a.txt", L"top:", L"top:"})));
    EXPECT_EQ(std::vector<std::wstring>{L"This label is already in use.\ntop:"}, Messages());
}

TEST_F(ScriptRunnerTest, IncludedScriptsShareTablesAndSelectionButNotLabels) {
    VariableTable variables;
    variables.Set(L"NAME", L"grand");
    selection = {L"C:\\one.txt", L"C:\\two.txt", L"C:\\three.txt"};
    AddScript(L"child.txt", {L"top:", L"include = C:\\NAME\\?SelectedCount?.txt", L"include = ?ScriptPath?grand.txt"});
    AddScript(L"grand.txt", {L"dup:", L"dup:"});
    const std::wstring parent =
        AddScript(L"parent.txt", {L"top:", L"include = %Script_dir%child.txt", L"include = C:\\after.txt"});
    EXPECT_EQ(0, Run(parent, &variables));
    EXPECT_EQ((std::vector<std::wstring>{L"Cannot read C:\\grand\\3.txt", L"This label is already in use.\ndup:",
                                         L"Cannot read C:\\after.txt"}),
              Messages());
}

TEST_F(ScriptRunnerTest, TheTraceWindowHearsOfEachScriptAndWhereTheParentGoesOn) {
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);
    const std::wstring child = AddScript(L"child.txt", {L"debug"});
    const std::wstring parent = AddScript(L"parent.txt", {L"debug", L"// x", L"include = " + child});
    EXPECT_EQ(0, Run(parent));
    auto report = [](uint32_t code, const std::wstring& text) {
        return SentCopyData{0x51, 0, code, text, static_cast<uint32_t>(text.size() * 8 + 8)};
    };
    EXPECT_EQ((std::vector<SentCopyData>{report(1, parent), report(2, L"3"), report(1, child), report(1, parent),
                                         report(2, L"3")}),
              fake.windows().copies());
}

TEST_F(ScriptRunnerTest, NoTraceWithoutDebugOrWithoutTheWindowAtTheStart) {
    const std::wstring child = AddScript(L"child.txt", {L"x = 1"});
    const std::wstring traced = AddScript(L"traced.txt", {L"debug", L"include = " + child});
    EXPECT_EQ(0, Run(traced));
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);
    EXPECT_EQ(0, Run(AddScript(L"quiet.txt", {L"include = " + child})));
    EXPECT_TRUE(fake.windows().copies().empty());
}

TEST_F(ScriptRunnerTest, AnItemBeyondTheSelectionIsAnInvalidArgument) {
    VariableTable variables;
    selection = {L"C:\\a.txt"};
    std::wstring text = L"?SelFile?";
    EXPECT_THROW(ExpandScriptText(text, variables, L"", L"", selection, 1, false, directories), ScriptInvalidArgument);
    EXPECT_THROW(ExpandScriptText(text, variables, L"", L"", selection, -2, false, directories), ScriptInvalidArgument);
    ExpandScriptText(text, variables, L"", L"", selection, 0, false, directories);
    EXPECT_EQ(L"\"C:\\a.txt\"", text);
}

}  // namespace
