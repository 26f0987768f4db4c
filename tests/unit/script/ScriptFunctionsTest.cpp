// The functions of an assignment: the value stored, the messages shown, and how the run goes on.
#include <gtest/gtest.h>

#include <algorithm>

#include "unit/script/ScriptFixture.h"

namespace {

class ScriptFunctionsTest : public ScriptFixture {
protected:
    ScriptFunctionsTest() {
        fake.files().AddFile(L"C:\\Data\\notes.txt", std::string_view("n"));
        fake.files().AddDirectory(L"C:\\Data\\Sub");
        fake.files().AddFile(L"C:\\ blank", std::string_view("b"));
    }
};

TEST_F(ScriptFunctionsTest, TextAndPathFunctions) {
    // clang-format off
    const ScriptCase cases[] = {
        {"length counts characters", {L"var qx = Length, a,b "}, {{L"qx", L"4"}}},
        {"any case, name trimmed", {L"var qx =  LENGTH ,abc"}, {{L"qx", L"3"}}},
        {"substring takes start and count", {L"var qx = SubString,1,3,abcdef"}, {{L"qx", L"bcd"}}},
        {"substring past the end", {L"var qx = substring,4,9,abcdef"}, {{L"qx", L"ef"}}},
        {"substring keeps commas of its text", {L"var qx = substring,0,3,a,b,c"}, {{L"qx", L"a,b"}}},
        {"find with case", {L"var qx = find,B,aBcB"}, {{L"qx", L"1"}}},
        {"find nothing", {L"var qx = find,b,aBc"}, {{L"qx", L"-1"}}},
        {"replace every piece", {L"var qx = replace,o,0,foo boo"}, {{L"qx", L"f00 b00"}}},
        {"csv field trimmed", {L"var qx = csv,1,a, b ,c"}, {{L"qx", L"b"}}},
        {"csv empty field stores the arguments", {L"var qx = csv,1,a,,c"}, {{L"qx", L"1,a,,c"}}},
        {"left", {L"var qx = left,2,abc"}, {{L"qx", L"ab"}}},
        {"right", {L"var qx = right,2,abc"}, {{L"qx", L"bc"}}},
        {"a result that computes is computed", {L"var qx = left,3,1/2x"}, {{L"qx", L"0.5"}}},
        {"an empty result stores the arguments", {L"var qx = left,0, abc"}, {{L"qx", L"0, abc"}}},
        {"an empty argument stores empty text", {L"var qx = k", L"qx = GetPath,"}, {{L"qx", L""}}},
        {"double computes", {L"var qx = double,(1+2)*1.5"}, {{L"qx", L"4.5"}}},
        {"not a function name: the whole right side", {L"var qx = lefty,2,abc"}, {{L"qx", L"lefty,2,abc"}}},
        {"a name alone is no function", {L"var qx = Exist"}, {{L"qx", L"Exist"}}},
        {"main window position leaves its arguments", {L"var qx = MainWindowPosition,a,b"}, {{L"qx", L"a,b"}}},
        {"substring needs four fields", {L"var qx = keep", L"qx = substring,1, abc ", L"var qy = on"},
         {{L"qx", L"keep"}, {L"qy", L"on"}}, {SyntaxError(L" substring,1, abc ")}},
        {"find, left, right need three", {L"var qx = k", L"qx = find,a", L"qx = left,1", L"qx = right,1"},
         {{L"qx", L"k"}}, {SyntaxError(L" find,a"), SyntaxError(L" left,1"), SyntaxError(L" right,1")}},
        {"replace needs four", {L"var qx = k", L"qx = replace,a,b"}, {{L"qx", L"k"}}, {SyntaxError(L" replace,a,b")}},
        {"csv index out of range", {L"var qx = k", L"qx = csv,3,a,b", L"qx = csv,-1,a", L"var qy = on"},
         {{L"qx", L"k"}, {L"qy", L"on"}}, {L"Illegal Function Call!\ncsv,3,a,b", L"Illegal Function Call!\ncsv,-1,a"}},
        {"double's error ends the run", {L"var qx = k", L"qx = double,1/0", L"qx = on"}, {{L"qx", L"k"}},
         {L"Division by zero.\nqx = double,1/0"}},
        {"exist", {L"var q1 = Exist,C:\\Data\\notes.txt", L"var q2 = exist,C:\\Data\\none.txt"},
         {{L"q1", L"1"}, {L"q2", L"0"}}},
        {"a blank behind the comma is part of the path",
         {L"var q1 = Exist, C:\\Data\\notes.txt", L"var q2 = Exist, blank"}, {{L"q1", L"0"}, {L"q2", L"1"}}},
        {"directory or file",
         {L"var q1 = IsDirectory,C:\\Data\\Sub", L"var q2 = IsFile,C:\\Data\\Sub",
          L"var q3 = IsDirectory,C:\\Data\\notes.txt", L"var q4 = IsFile,C:\\Data\\notes.txt"},
         {{L"q1", L"1"}, {L"q2", L"0"}, {L"q3", L"0"}, {L"q4", L"1"}}},
        {"a missing path counts as a directory", {L"var q1 = IsDirectory,C:\\No", L"var q2 = IsFile,C:\\No"},
         {{L"q1", L"1"}, {L"q2", L"0"}}},
        {"path, name, extension",
         {L"var q1 = GetPath,C:\\D\\x.tar.gz", L"var q2 = GetName,C:\\D\\x.tar.gz", L"var q3 = GetExt,C:\\D\\x.tar.gz"},
         {{L"q1", L"C:\\D\\"}, {L"q2", L"x.tar"}, {L"q3", L".gz"}}},
        {"name of a directory with its separator", {L"var q1 = GetName,C:\\D\\Sub\\"}, {{L"q1", L"Sub"}}},
        {"no extension stores the argument", {L"var q1 = GetExt,noext", L"var q2 = GetName,C:\\"},
         {{L"q1", L"noext"}, {L"q2", L"C:\\"}}},
        {"one separator removed", {L"var q1 = RemoveLastSeparator,C:\\D\\\\", L"var q2 = RemoveLastSeparator,a/"},
         {{L"q1", L"C:\\D\\"}, {L"q2", L"a"}}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
}

// random seeds with the tick count each time, so the fake's clock decides the pick; an empty listing
// empties the variable and tells the trace window nothing.
TEST_F(ScriptFunctionsTest, RandomPicksAnEntryOfThePattern) {
    fake.files().AddFile(L"C:\\Data\\other.txt", std::string_view("o"));
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);
    // At 1000000 ticks: srand(1000000) and rand() give 21585, odd, so the second of two entries.
    Check({"picked",
           {L"debug", L"var qx = random,C:\\Data\\*.txt", L"var qy = k", L"qy = random,C:\\Data\\*.gif"},
           {{L"qx", L"C:\\Data\\other.txt"}, {L"qy", L""}}});
    std::vector<std::wstring> reports;
    for (const auto& copy : fake.windows().copies())
        if (copy.text.starts_with(L"qy\t")) reports.push_back(copy.text);
    EXPECT_EQ((std::vector<std::wstring>{L"qy\t", L"qy\tk"}), reports);
}

// call waits as the options say and starts in bootdir; a program that cannot start leaves the command line.
TEST_F(ScriptFunctionsTest, CallAndExecStoreTheExitCode) {
    fake.processes().SetProgram({.exitCode = 7});
    Check({"exit codes",
           {L"timeout = 1500", L"bootdir = C:\\Work", L"var q1 = call, tool.exe /x", L"var q2 = EXEC,tool.exe",
            L"call = tool.exe /a", L"exec = other.exe"},
           {{L"q1", L"7"}, {L"q2", L"7"}}});
    std::vector<std::wstring> started;
    for (const auto& start : fake.processes().starts()) started.push_back(start.commandLine + L" @ " + start.directory);
    EXPECT_EQ((std::vector<std::wstring>{L"tool.exe /x @ C:\\Work", L"tool.exe @ C:\\Work", L"tool.exe /a @ C:\\Work",
                                         L"other.exe @ C:\\Work"}),
              started);
    EXPECT_EQ(2, std::count(fake.processes().events().begin(), fake.processes().events().end(), L"wait 1500"));

    fake.processes().SetProgram({.starts = false});
    Check(
        {"a program that cannot start", {L"var q1 = call,tool.exe /y"}, {{L"q1", L"tool.exe /y"}}, {L"Error 2.\r\n"}});
}

}  // namespace
