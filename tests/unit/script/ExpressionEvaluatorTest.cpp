#include <gtest/gtest.h>

#include "script/ExpressionEvaluator.h"
#include "script/ScriptNumbers.h"

namespace {

TEST(ExpressionEvaluator, ValuesAndErrorCodes) {
    // clang-format off
    struct Case { const wchar_t* text; const wchar_t* value; int32_t error; };
    const Case cases[] = {
        {L"1+2*3", L"7", 0},    {L"(1+2)*3", L"9", 0},    {L"10-4-3", L"3", 0},       {L"1/3", L"0.333333", 0},
        {L"4/2", L"2", 0},      {L"7%3", L"1", 0},        {L"7.5%2", L"1.5", 0},      {L"-(2)", L"-2", 0},
        {L"--2", L"2", 0},      {L"+-+2", L"-2", 0},      {L"-2*-3", L"6", 0},        {L"1.50", L"1.5", 0},
        {L"2024-01-15", L"2008", 0},        {L"007", L"7", 0},        {L"1e3", L"1000", 0},
        {L"3000000000", L"3000000000.", 0}, {L"0.0000001", L"0.", 0}, {L"2147483647+1", L"2147483648.", 0},
        {L"-2147483648", L"-2147483648", 0},
        {L"1/0", L"0", 2},      {L"1%0", L"0", 2},        {L"12 34", L"0", '3'},      {L"1)", L"0", ')'},
        {L"(1", L"0", 1},       {L"+", L"0", 1},          {L"", L"0", 1},             {L"*2", L"0", 1},
        {L".", L"0", '.'},
        // The blank ends the number 1 and the point is left over.
        {L" 1 . 5 ", L"0", '.'},
        // The parenthesis finds the division's code and takes it for its own.
        {L"(1/0)", L"0", 1},
    };
    // clang-format on
    for (const Case& c : cases) {
        const ComputedText computed = ExpressionEvaluator(c.text).Compute();
        EXPECT_EQ(c.value, computed.value) << testing::PrintToString(std::wstring(c.text));
        EXPECT_EQ(c.error, computed.error) << testing::PrintToString(std::wstring(c.text));
    }
}

TEST(ScriptNumbers, TheThreeTestsDiffer) {
    // clang-format off
    struct Case { const wchar_t* text; bool scriptNumber; const wchar_t* normalised; bool signedInteger; };
    const Case cases[] = {
        {L"", true, L"", true},                      {L"  ", true, L"  ", false},        {L"007", true, L"7", true},
        {L" 1 2 ", true, L"12", false},              {L"0x1F", true, L"31", false},      {L"0x", false, L"0x", false},
        {L"0X1F", false, L"0X1F", false},            {L"0xFFFFFFFFF", true, L"2147483647", false},
        {L"-5", false, L"-5", true},                 {L"+5", false, L"+5", true},        {L"-", false, L"-", true},
        {L"1.5", false, L"1.5", false},              {L"a9", false, L"a9", false},
        {L"99999999999", true, L"99999999999", true},
    };
    // clang-format on
    for (const Case& c : cases) {
        const std::wstring text = c.text;
        EXPECT_EQ(c.scriptNumber, IsScriptNumber(text)) << testing::PrintToString(text);
        EXPECT_EQ(c.normalised, NormalisedNumberText(text)) << testing::PrintToString(text);
        EXPECT_EQ(c.signedInteger, IsSignedInteger(text)) << testing::PrintToString(text);
    }
}

TEST(ScriptNumbers, HexadecimalRewritingAndTheExpressionAlphabet) {
    const std::pair<const wchar_t*, const wchar_t*> rewrites[] = {
        {L"0x10", L"16"},
        {L"C:\\0x10\\a", L"C:\\16\\a"},
        {L"10x5", L"15"},
        {L"abc0x10", L"abc16"},
        {L"0x1g0xff", L"1g255"},
        {L"0X10", L"0X10"},
        {L"0xg", L"0xg"},
        {L"0x", L"0x"},
        {L"0xFFFFFFFFFF", L"2147483647"},
    };
    for (const auto& [text, rewritten] : rewrites) {
        std::wstring changed = text;
        RewriteHexNumbers(changed);
        EXPECT_EQ(rewritten, changed) << testing::PrintToString(std::wstring(text));
    }
    EXPECT_TRUE(IsExpressionText(L"(1 + 2.5) * 3 % 4 / 5 - 6"));
    EXPECT_FALSE(IsExpressionText(L"1\t+2"));
    EXPECT_FALSE(IsExpressionText(L"1e3"));
    EXPECT_EQ(26, ScriptInteger(L"0x1A"));
    EXPECT_EQ(12, ScriptInteger(L"12abc"));
    EXPECT_EQ(9000000000LL, ScriptInteger(L"9000000000"));
}

}  // namespace
