#include <gtest/gtest.h>

#include "services/Tokenizer.h"

namespace {

using Fields = std::vector<std::wstring>;

// Fields are added behind what the target holds; the count is of all it holds, or 0 for an empty text.
TEST(Tokenize, SplitsAsTheFileFormatsNeed) {
    // count -1: the number of fields expected
    // clang-format off
    struct Case { std::wstring text; wchar_t separator; bool trim, keep; Fields expected; Fields before = {}; int count = -1; };
    const Case cases[] = {
        {L"abc", L':', false, false, {L"abc"}}, {L"a:b", L':', false, false, {L"a", L"b"}},
        {L"::", L':', false, true, {L"", L"", L""}}, {L":", L':', false, true, {L"", L""}},
        {L":", L':', false, false, {}},
        {L"a::b:", L':', false, false, {L"a", L"b"}}, {L"a::b:", L':', false, true, {L"a", L"", L"b", L""}},
        {L" a : b ", L':', false, false, {L" a ", L" b "}}, {L" a : b ", L':', true, false, {L"a", L"b"}},
        {L"a:   :b", L':', true, false, {L"a", L"b"}}, {L"a:   :b", L':', true, true, {L"a", L"", L"b"}},
        {L"a:   :b", L':', false, false, {L"a", L"   ", L"b"}}, {L"\u3000x\u3000/y", L'/', true, true, {L"x", L"y"}},
        {L"a\tb\t", L'\t', false, true, {L"a", L"b", L""}},
        {L"x/y", L'/', false, true, {L"old", L"x", L"y"}, {L"old"}},
        {L"", L'/', true, true, {L"old"}, {L"old"}, 0},
        {std::wstring(L"a/b\0c/d", 7), L'/', false, true, {L"a", L"b"}},  // a zero ends the text
    };
    // clang-format on
    for (const auto& c : cases) {
        Fields target = c.before;
        const int count = Tokenize(target, c.text, c.separator, c.trim, c.keep);
        EXPECT_EQ(c.expected, target) << testing::PrintToString(c.text);
        EXPECT_EQ(c.count < 0 ? static_cast<int>(c.expected.size()) : c.count, count) << testing::PrintToString(c.text);
    }
    Fields target = {L"old"};
    EXPECT_EQ(0, Tokenize(target, static_cast<const wchar_t*>(nullptr), L'/', true, true));
    EXPECT_EQ(Fields{L"old"}, target);
}

TEST(SeparatorFields, KeyAndValueOfALine) {
    // clang-format off
    struct Case { const wchar_t* line; bool flag; const wchar_t* left; const wchar_t* right; };
    const Case cases[] = {
        {L"  Run = notepad.exe ", true, L"run", L"notepad.exe"},
        {L"  Run = notepad.exe ", false, L"Run", L" notepad.exe "}, {L"Key=a=b", true, L"key", L"a=b"},
        {L"no separator", true, L"", L""}, {L"=value", true, L"", L"value"}, {L"ÄBC=1", true, L"Äbc", L"1"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.left, LeftOfSeparator(c.line, L'=', c.flag)) << testing::PrintToString(std::wstring(c.line));
        EXPECT_EQ(c.right, RightOfSeparator(c.line, L'=', c.flag)) << testing::PrintToString(std::wstring(c.line));
    }
}

}  // namespace
