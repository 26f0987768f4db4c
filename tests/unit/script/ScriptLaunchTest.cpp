// Scripts that start programs: what the system is asked, line by line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/script/ScriptFixture.h"

namespace {

class ScriptLaunchTest : public ScriptFixture {
protected:
    ScriptLaunchTest() {
        fake.files().AddFile(L"C:\\Tools\\view.exe", std::string_view());
        fake.files().AddDirectory(L"C:\\Data");
    }

    std::vector<std::wstring> ShellStarts() {
        std::vector<std::wstring> started;
        for (const auto& request : fake.processes().shellRequests())
            started.push_back(request.file + L" " + request.parameters);
        return started;
    }
};

// The first target decides: a program starts for every item, and the lines after it start too.
TEST_F(ScriptLaunchTest, RunStartsAProgramPerItem) {
    selection = {L"C:\\Data\\a.txt", L"C:\\Data\\b.txt"};
    RunLines({L"commandlineoption = /v ?SelFile?", L"run = C:\\Tools\\view.exe", L"commandlineoption = /w",
              L"run = C:\\Tools\\view.exe"});
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Tools\\view.exe /v \"C:\\Data\\a.txt\"",
                                         L"C:\\Tools\\view.exe /v \"C:\\Data\\b.txt\"", L"C:\\Tools\\view.exe /w"}),
              ShellStarts());
}

// A folder first makes the host open every later target.
TEST_F(ScriptLaunchTest, AFolderFirstGoesToTheHostAndSoDoLaterTargets) {
    RunLines({L"run = C:\\Data", L"run = C:\\Tools\\view.exe"});
    EXPECT_TRUE(fake.processes().shellRequests().empty());
    ASSERT_EQ(2u, fake.windows().copies().size());
    EXPECT_EQ(200u, fake.windows().copies()[0].code);
    EXPECT_EQ(L"C:\\Data", fake.windows().copies()[0].text);
    EXPECT_EQ(L"C:\\Tools", fake.windows().copies()[1].text);
}

// shell sees variables, run does not; a declared variable named like the word takes the value and
// starts nothing.
TEST_F(ScriptLaunchTest, ShellSeesVariablesAndRunDoesNot) {
    RunLines({L"var tool = C:\\Tools\\view.exe", L"openmode = 1", L"shell = tool", L"run = tool"});
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Tools\\view.exe ", L"tool "}), ShellStarts());
    RunLines({L"var run", L"run = C:\\Tools\\view.exe"});
    EXPECT_EQ(L"C:\\Tools\\view.exe", Value(L"run"));
    EXPECT_EQ(2u, fake.processes().shellRequests().size()) << "nothing more started";
}

// call waits with the time-out of the options and starts in bootdir; exec does not wait.
TEST_F(ScriptLaunchTest, CallAndExecStatements) {
    RunLines({L"timeout = 1500", L"bootdir = C:\\Work", L"call = tool.exe /a", L"exec = other.exe"});
    ASSERT_EQ(2u, fake.processes().starts().size());
    EXPECT_EQ(L"tool.exe /a", fake.processes().starts()[0].commandLine);
    EXPECT_EQ(L"C:\\Work", fake.processes().starts()[0].directory);
    EXPECT_EQ((std::vector<std::wstring>{L"wait 1500", L"exit code", L"close", L"exit code", L"close"}),
              fake.processes().events());
}

// An unknown line answered No ends the run; a checkgrammar option other than "1" is the user's
// editor, started at that line with handles inherited, or the reason it could not start.
TEST_F(ScriptLaunchTest, UnknownLineAnsweredNoOpensTheEditorAtIt) {
    struct Case {
        const char* what;
        std::wstring grammar;
        bool starts;
        std::vector<std::wstring> started;
    };
    const Case cases[] = {
        {"only asked", L"1", true, {}},
        {"the editor at the line", L"edit.exe /l:?ErrorLine?", true, {L"edit.exe /l:3"}},
        {"an editor that cannot start", L"edit.exe /l:?ErrorLine?", false, {L"edit.exe /l:3"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const size_t before = fake.processes().starts().size();
        platform::fake::FakeProgram program;
        program.starts = c.starts;
        fake.processes().SetProgram(program);
        answers = {7};
        RunLines({L"checkgrammar = " + c.grammar, L"var x = a", L"frobnicate", L"x = &b"});
        EXPECT_EQ(L"a", Value(L"x")) << "the run ended at the line";
        std::vector<std::wstring> started;
        for (size_t i = before; i < fake.processes().starts().size(); ++i) {
            const platform::ProcessStart& start = fake.processes().starts()[i];
            EXPECT_TRUE(start.inheritHandles);
            started.push_back(start.commandLine);
        }
        EXPECT_EQ(c.started, started);
        // The question, and when the editor cannot start the catalogue's reason behind the option.
        ASSERT_FALSE(Messages().empty());
        EXPECT_EQ(0u, Messages()[0].rfind(L"This is the line that I do not understand.", 0));
        if (c.starts) {
            EXPECT_EQ(1u, Messages().size());
        } else {
            EXPECT_TRUE(Messages().back().ends_with(L"\n" + c.grammar));
        }
    }
}

}  // namespace
