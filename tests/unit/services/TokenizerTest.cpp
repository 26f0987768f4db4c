#include <gtest/gtest.h>

#include "services/Tokenizer.h"

namespace {

using Fields = std::vector<std::wstring>;

struct TokenizeCase {
    const wchar_t* text;
    wchar_t separator;
    bool trim;
    bool keep;
    Fields expected;
};

TEST(Tokenize, SplitsAsTheFileFormatsNeed) {
    const TokenizeCase cases[] = {
        {L"abc", L':', false, false, {L"abc"}},
        {L"a:b", L':', false, false, {L"a", L"b"}},
        {L"::", L':', false, true, {L"", L"", L""}},
        {L":", L':', false, true, {L"", L""}},
        {L":", L':', false, false, {}},
        {L"a::b:", L':', false, false, {L"a", L"b"}},
        {L"a::b:", L':', false, true, {L"a", L"", L"b", L""}},
        {L" a : b ", L':', false, false, {L" a ", L" b "}},
        {L" a : b ", L':', true, false, {L"a", L"b"}},
        {L"a:   :b", L':', true, false, {L"a", L"b"}},
        {L"a:   :b", L':', true, true, {L"a", L"", L"b"}},
        {L"a:   :b", L':', false, false, {L"a", L"   ", L"b"}},
        {L"\u3000x\u3000/y", L'/', true, true, {L"x", L"y"}},
        {L"a\tb\t", L'\t', false, true, {L"a", L"b", L""}},
    };
    for (const auto& c : cases) {
        Fields target;
        int count = Tokenize(target, c.text, c.separator, c.trim, c.keep);
        EXPECT_EQ(c.expected, target) << "text [" << testing::PrintToString(std::wstring(c.text)) << "]";
        EXPECT_EQ(static_cast<int>(c.expected.size()), count);
    }
}

TEST(Tokenize, AppendsAndCountsWhatTheTargetHolds) {
    Fields target = {L"old"};
    EXPECT_EQ(3, Tokenize(target, L"x/y", L'/', false, true));
    EXPECT_EQ((Fields{L"old", L"x", L"y"}), target);
}

TEST(Tokenize, EmptyTextReturnsZeroAndLeavesTheTargetAlone) {
    Fields target = {L"old"};
    EXPECT_EQ(0, Tokenize(target, L"", L'/', true, true));
    EXPECT_EQ(0, Tokenize(target, static_cast<const wchar_t*>(nullptr), L'/', true, true));
    EXPECT_EQ(Fields{L"old"}, target);
}

TEST(Tokenize, NulEndsTheTextEarly) {
    Fields target;
    std::wstring text(L"a/b\0c/d", 7);
    EXPECT_EQ(2, Tokenize(target, text, L'/', false, true));
    EXPECT_EQ((Fields{L"a", L"b"}), target);
}

TEST(SeparatorFields, KeyAndValueOfALine) {
    struct Case {
        const wchar_t* line;
        bool flag;
        const wchar_t* left;
        const wchar_t* right;
    };
    const Case cases[] = {
        {L"  Run = notepad.exe ", true, L"run", L"notepad.exe"},
        {L"  Run = notepad.exe ", false, L"Run", L" notepad.exe "},
        {L"Key=a=b", true, L"key", L"a=b"},
        {L"no separator", true, L"", L""},
        {L"=value", true, L"", L"value"},
        {L"ÄBC=1", true, L"Äbc", L"1"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.left, LeftOfSeparator(c.line, L'=', c.flag)) << testing::PrintToString(std::wstring(c.line));
        EXPECT_EQ(c.right, RightOfSeparator(c.line, L'=', c.flag)) << testing::PrintToString(std::wstring(c.line));
    }
}

}  // namespace
