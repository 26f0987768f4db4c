#include <gtest/gtest.h>

#include "unit/script/ScriptFixture.h"

namespace {

class ScriptOptionLineTest : public ScriptFixture {};

// What the shared table holds after each line: included scripts and the caller see it.
TEST_F(ScriptOptionLineTest, OptionLinesWriteTheSharedTable) {
    struct Case {
        std::wstring line;
        const wchar_t* key;
        const wchar_t* kept;
    };
    const Case cases[] = {
        {L"Timeout = 5000ms", L"timeout", L"5000"},
        {L"timeout = v", L"timeout", L"42"},
        {L"showwindow =", L"showwindow", L"0"},
        {L"multicommandmode = 2", L"multicommandmode", L"0"},
        {L"shiftsilentmode = 01", L"shiftsilentmode", L"1"},
        {L"checkgrammar =", L"checkgrammar", L"0"},
        {L"checkgrammar = 1", L"checkgrammar", L"1"},
        {L"checkgrammar = edit ?ErrorLine? v", L"checkgrammar", L"edit ?ErrorLine? 42"},
        {L"bootdir =  %Script_dir%v ", L"bootdir", L"C:\\Users\\tester\\AppData\\Local\\Qor\\Script\\42"},
        {L"filter = txt,v", L"filter", L"txt,42"},
        {L"commandlineoption = -v ?SelFile?", L"commandlineoption", L"-42 ?SelFile?"},
        {L"openmode = 3", L"openmode", L"3"},
        {L"icon = C:\\a.ico", L"icon", nullptr},
    };
    for (const Case& c : cases) {
        VariableTable shared;
        shared.Set(L"v", L"42");
        RunOptionTable options;
        FillRunOptionDefaults(options);
        EXPECT_EQ(0, Run(AddScript(L"options.txt", {c.line}), &shared, &options));
        const std::wstring* kept = options.Find(c.key);
        EXPECT_EQ(c.kept ? std::wstring(c.kept) : L"<none>", kept ? *kept : L"<none>") << testing::PrintToString(c.line);
    }
    EXPECT_TRUE(Messages().empty());
}

TEST_F(ScriptOptionLineTest, CommandLinesAsTheCallerAllows) {
    const std::wstring path = AddScript(L"options.txt", {L"commandlineoption = /x ?SelFile?"});
    for (const auto& [allow, selectionLine, kept] :
         {std::tuple{0, 0, L""}, std::tuple{1, 1, L"?SelFile?"}, std::tuple{1, 0, L"/x ?SelFile?"}}) {
        RunOptionTable options;
        FillRunOptionDefaults(options);
        runner.Run(path, L"", L"", selection, static_cast<uint32_t>(-1), allow, 0, selectionLine, 1, nullptr, &options);
        EXPECT_EQ(kept, *options.Find(L"commandlineoption")) << allow << selectionLine;
    }
}

TEST_F(ScriptOptionLineTest, AForcedOpenModeLeavesTheTableAlone) {
    RunOptionTable options;
    FillRunOptionDefaults(options);
    runner.Run(AddScript(L"options.txt", {L"openmode = 3"}), L"", L"", selection, 2, 1, 0, 0, 1, nullptr, &options);
    EXPECT_EQ(L"0", *options.Find(L"openmode"));
}

}  // namespace
