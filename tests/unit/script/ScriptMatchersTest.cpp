#include <gtest/gtest.h>

#include "script/ScriptMatchers.h"

namespace {

using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;

// Each pair is a text and a pattern; the first list matches, the second does not.
template <typename Match>
void ExpectMatches(Match match, const Pairs& matching, const Pairs& failing) {
    for (const auto& [text, pattern] : matching)
        EXPECT_TRUE(match(text, pattern)) << testing::PrintToString(text) << " " << testing::PrintToString(pattern);
    for (const auto& [text, pattern] : failing)
        EXPECT_FALSE(match(text, pattern)) << testing::PrintToString(text) << " " << testing::PrintToString(pattern);
}

TEST(ScriptMatchers, AWildcardComparesWithCase) {
    const std::wstring many(2000, L'a');
    const std::wstring stars = std::wstring(30, L'*') + L"b";
    const Pairs matching = {{L"abc", L"abc"},   {L"ab", L"a?"},      {L"", L"*"},
                            {L"", L""},         {L"abc", L"*"},      {L"abc", L"a*c"},
                            {L"ac", L"a*c"},    {L"abcbc", L"a*bc"}, {L"aXbXc", L"a*b*c"},
                            {L"file.", L"*.*"}, {L"abc", L"**?**"},  {L"mississippi", L"m*iss*ppi"}};
    const Pairs failing = {
        {L"abc", L"ab"},     {L"ab", L"abc"},   {L"a", L"a?"},    {L"", L"?"},        {L"x", L""},
        {L"abcbd", L"a*bc"}, {L"file", L"*.*"}, {L"ABC", L"abc"}, {L"a*c", L"a\\*c"}, {L"mississippi", L"m*iss*ppix"},
        {many, stars}};
    ExpectMatches(MatchWildcard, matching, failing);
}

// A list of patterns split at ";" compares ASCII letters in any case; blanks belong to the pattern.
TEST(ScriptMatchers, APatternListIgnoresAsciiCase) {
    const Pairs matching = {
        {L"REPORT.TXT", L"*.txt;*.log"}, {L"server.log", L"*.txt;*.LOG"}, {L"a.txt", L";;*.txt"}, {L"abc", L"A*"}};
    const Pairs failing = {
        {L"a.txt", L""}, {L"a.txt", L";;"}, {L"a.txt", L" *.txt"}, {L"a.txt", L"*.doc; *.txt"}, {L"Ärger", L"ä*"}};
    ExpectMatches(MatchPatternList, matching, failing);
}

// An extension list (names trimmed, no wildcards) takes the item's last extension in any case.
TEST(ScriptMatchers, AnExtensionListTakesTheLastExtension) {
    const Pairs matching = {{L"C:\\data\\server.LOG", L"txt, ,log"},
                            {L"C:\\a.txt", L" txt , log "},
                            {L"C:\\dir\\.txt", L"txt"},
                            {L"C:\\a.tar.gz", L"gz"}};
    const Pairs failing = {{L"C:\\a.text", L"txt"},        {L"C:\\a.", L"txt"},  {L"C:\\a.", L""},
                           {L"C:\\dir.txt\\file", L"txt"}, {L"C:\\a.txt", L"*"}, {L"C:\\a.txt", L""},
                           {L"C:\\a.tar.gz", L"tar.gz"}};
    ExpectMatches([](const std::wstring& item, const std::wstring& list) { return MatchExtensionList(list, item); },
                  matching, failing);
}

}  // namespace
