#include <gtest/gtest.h>

#include "script/ScriptLine.h"
#include "unit/script/ScriptFixture.h"

namespace {

class ScriptLineTest : public ScriptFixture {};

TEST_F(ScriptLineTest, HowALineIsCutUp) {
    struct Case {
        std::wstring text;
        std::wstring raw;
        std::wstring statement;
        std::wstring keyword;
        size_t tokenCount;
        std::wstring word;
        std::wstring value;
    };
    const Case cases[] = {
        {L"\tFor  x\t", L"\tFor  x\t", L"For  x", L"for", 3, L"", L""},
        {L"GoTo\tEnd", L"GoTo\tEnd", L"GoTo End", L"goto", 2, L"", L""},
        {L" Msg\t=\ta = b ", L" Msg\t=\ta = b ", L"Msg = a = b", L"msg", 5, L"msg", L"a = b"},
        {L"=x", L"=x", L"=x", L"=x", 1, L"", L"x"},
        {L"", L"", L"", L"", 0, L"", L""},
        {L"n=?SelectedCount?/?ScriptName?/?ScriptPath?", L"n=2/s.txt/C:\\d\\", L"n=2/s.txt/C:\\d\\",
         L"n=2/s.txt/c:\\d\\", 1, L"n", L"2/s.txt/C:\\d\\"},
        {L"// ?SelectedCount?", L"// 2", L"// 2", L"//", 2, L"", L""},
    };
    selection = {L"a", L"b"};
    ScriptArguments arguments;
    arguments.scriptPath = L"C:\\d\\s.txt";
    arguments.selection = &selection;
    ScriptFrame frame(runner, arguments);
    selection.push_back(L"c");  // the count stays what it was at the start
    for (const auto& c : cases) {
        const ScriptLine line = MakeScriptLine(frame, c.text);
        const std::string label = testing::PrintToString(c.text);
        EXPECT_EQ(c.raw, line.raw) << label;
        EXPECT_EQ(c.statement, line.statement) << label;
        EXPECT_EQ(c.keyword, line.keyword) << label;
        EXPECT_EQ(c.tokenCount, line.tokenCount) << label;
        EXPECT_EQ(c.word, line.word) << label;
        EXPECT_EQ(c.value, line.value) << label;
    }
    ScriptArguments bare = arguments;
    bare.scriptPath = L"plain.txt";
    ScriptFrame noDirectory(runner, bare);
    EXPECT_EQ(L"[plain.txt][]", MakeScriptLine(noDirectory, L"[?ScriptName?][?ScriptPath?]").raw);
}

}  // namespace
