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

}  // namespace
