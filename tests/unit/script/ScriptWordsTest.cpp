#include <gtest/gtest.h>

#include "script/ReservedWords.h"
#include "script/RunOptions.h"

namespace {

TEST(ScriptWords, ReservedInAnyCaseAsAWhole) {
    for (const wchar_t* word : {L"if", L"ENDIF", L"Var", L"goto", L"exit", L"exitall", L"for", L"next", L"continue",
                                L"break", L"skip", L"stop", L"else", L"while", L"do", L"DEBUG"})
        EXPECT_TRUE(IsReservedWord(word)) << testing::PrintToString(std::wstring(word));
    for (const wchar_t* name : {L"iffy", L"do1", L" if", L"include", L"", L"goto x", L"var[1]"})
        EXPECT_FALSE(IsReservedWord(name)) << testing::PrintToString(std::wstring(name));
}

TEST(ScriptWords, RunOptionsANewFrameStartsWith) {
    RunOptionTable table;
    FillRunOptionDefaults(table);
    EXPECT_EQ(13u, table.size());
    const RunOptions options = ReadRunOptions(table);
    EXPECT_EQ(L"", options.commandLineOption);
    EXPECT_EQ(L"", options.bootDir);
    EXPECT_EQ(0, options.bootMode);
    EXPECT_EQ(1, options.showWindow);
    EXPECT_EQ(-1, options.timeout);
    EXPECT_EQ(0, options.runWait);
    EXPECT_EQ(0, options.sendInfoMode);
    EXPECT_FALSE(options.multiCommandMode);
    EXPECT_TRUE(options.shiftSilentMode);
    EXPECT_EQ(L"", options.filter);
    EXPECT_EQ(5, options.exitLoopCount);
    EXPECT_EQ(L"0", options.checkGrammar);
    EXPECT_EQ(0, options.openMode);
    EXPECT_EQ(L"-1", *table.Find(L"timeout"));
    EXPECT_EQ(nullptr, table.Find(L"Timeout")) << "keys compare with case";
}

}  // namespace
