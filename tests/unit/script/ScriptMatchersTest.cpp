#include <gtest/gtest.h>

#include "script/ScriptMatchers.h"

namespace {

TEST(ScriptMatchers, Wildcard) {
    struct Case {
        std::wstring text;
        std::wstring pattern;
        bool matches;
    };
    const Case cases[] = {
        {L"abc", L"abc", true},
        {L"abc", L"ab", false},
        {L"ab", L"abc", false},
        {L"a", L"a?", false},
        {L"ab", L"a?", true},
        {L"", L"?", false},
        {L"", L"*", true},
        {L"", L"", true},
        {L"x", L"", false},
        {L"abc", L"*", true},
        {L"abc", L"a*c", true},
        {L"ac", L"a*c", true},
        {L"abcbc", L"a*bc", true},
        {L"abcbd", L"a*bc", false},
        {L"aXbXc", L"a*b*c", true},
        {L"file", L"*.*", false},
        {L"file.", L"*.*", true},
        {L"ABC", L"abc", false},
        {L"a*c", L"a\\*c", false},
        {L"mississippi", L"m*iss*ppi", true},
        {L"mississippi", L"m*iss*ppix", false},
        {L"abc", L"**?**", true},
        {std::wstring(2000, L'a'), std::wstring(30, L'*') + L"b", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.matches, MatchWildcard(c.text, c.pattern))
            << testing::PrintToString(c.text) << " " << testing::PrintToString(c.pattern);
}

TEST(ScriptMatchers, PatternList) {
    struct Case {
        std::wstring text;
        std::wstring patterns;
        bool matches;
    };
    const Case cases[] = {
        {L"REPORT.TXT", L"*.txt;*.log", true},
        {L"server.log", L"*.txt;*.LOG", true},
        {L"a.txt", L"", false},
        {L"a.txt", L";;", false},
        {L"a.txt", L";;*.txt", true},
        {L"a.txt", L" *.txt", false},
        {L"a.txt", L"*.doc; *.txt", false},
        {L"abc", L"A*", true},
        {L"Ärger", L"ä*", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.matches, MatchPatternList(c.text, c.patterns))
            << testing::PrintToString(c.text) << " " << testing::PrintToString(c.patterns);
}

TEST(ScriptMatchers, ExtensionList) {
    struct Case {
        std::wstring list;
        std::wstring item;
        bool matches;
    };
    const Case cases[] = {
        {L"txt, ,log", L"C:\\data\\server.LOG", true},
        {L" txt , log ", L"C:\\a.txt", true},
        {L"txt", L"C:\\a.text", false},
        {L"txt", L"C:\\a.", false},
        {L"", L"C:\\a.", false},
        {L"txt", L"C:\\dir.txt\\file", false},
        {L"txt", L"C:\\dir\\.txt", true},
        {L"*", L"C:\\a.txt", false},
        {L"", L"C:\\a.txt", false},
        {L"gz", L"C:\\a.tar.gz", true},
        {L"tar.gz", L"C:\\a.tar.gz", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.matches, MatchExtensionList(c.list, c.item))
            << testing::PrintToString(c.list) << " " << testing::PrintToString(c.item);
}

}  // namespace
