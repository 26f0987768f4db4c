#include <gtest/gtest.h>

#include "unit/script/ScriptFixture.h"

namespace {

class ScriptVariablesTest : public ScriptFixture {};

TEST_F(ScriptVariablesTest, AssignmentsAndDeclarations) {
    // clang-format off
    const ScriptCase cases[] = {
        {"a value that computes is stored computed", {L"var x", L"x = 2024-01-15", L"var y = 007", L"var z = 1.50"},
         {{L"x", L"2008"}, {L"y", L"7"}, {L"z", L"1.5"}}},
        {"a blank between numbers ends the run", {L"var x = 1", L"x = 12 34", L"x = 2"}, {{L"x", L"1"}},
         {SyntaxError(L"x = 12 34")}},
        {"division by zero ends the run", {L"var x = 1", L"x\t=\t1/0", L"x = 2"}, {{L"x", L"1"}},
         {L"Division by zero.\nx = 1/0"}},
        {"a lone plus is too short for a compound form", {L"var x = 5", L"x = +"}, {{L"x", L"5"}},
         {SyntaxError(L"x = +")}},
        {"compound forms on the old value",
         {L"var a = 10", L"a = -5", L"var b = 5", L"b = +2", L"var c = 6", L"c = *0x10", L"var d = 7", L"d = /2",
          L"var e = 10", L"e = %3", L"var f = 9", L"f = /0", L"var g = 9", L"g = %0"},
         {{L"a", L"5"}, {L"b", L"7"}, {L"c", L"96"}, {L"d", L"3"}, {L"e", L"1"}, {L"f", L"0"}, {L"g", L"0"}}},
        {"a negative number needs an expression", {L"var x = 5", L"x = 0-5", L"var y = -7", L"y = -7.5"},
         {{L"x", L"-5"}, {L"y", L"-7.5"}}},
        {"append keeps the blanks behind its sign", {L"var x = ab", L"x = &  cd", L"var n = 1", L"n = &2"},
         {{L"x", L"ab  cd"}, {L"n", L"12"}}},
        {"a name inside a number is replaced first", {L"var x = 3", L"var y = 0x10"}, {{L"y", L"310"}}},
        {"a letter protects the text", {L"var x = 12 34a", L"var y = 1/3k"}, {{L"x", L"12 34a"}, {L"y", L"1/3k"}}},
        {"nothing behind the equals sign", {L"var x = 5", L"x =", L"var y = 5", L"y =   "}, {{L"x", L""}, {L"y", L""}}},
        {"substitution comes first, compound forms too",
         {L"var y = 0-3", L"var x = 10", L"x = y", L"var s = 1", L"var t = s s"}, {{L"x", L"7"}, {L"t", L""}},
         {SyntaxError(L"t = s s")}},
        {"names are replaced inside words", {L"var n = 5", L"var x = none Name"}, {{L"x", L"5o5e Name"}}},
        {"an undeclared name is no assignment", {L"zz = 1", L"var x = 1"}, {{L"zz", L"<none>"}, {L"x", L"1"}}},
        {"arrays and their expanded index", {L"var a[3]", L"var i = 2", L"a[i] = 5", L"a[ 1 ] = 4"},
         {{L"a[0]", L""}, {L"a[1]", L"4"}, {L"a[2]", L"5"}, {L"a", L"<none>"}}},
        {"a text key or 0 makes one element", {L"var b[x]", L"var c[0]"},
         {{L"b[x]", L""}, {L"c[0]", L""}, {L"c[1]", L"<none>"}}},
        {"a malformed name is taken whole", {L"var a]b = 1", L"var c[d = 2"}, {{L"a]b", L"1"}, {L"c[d", L"2"}}},
        {"reserved in any case", {L"var If", L"var x"}, {{L"x", L"<none>"}},
         {L"This word is reserved and can not be used as a variable.\nIf"}},
        {"declared twice", {L"var x", L"var x = 1", L"var y"}, {{L"x", L""}, {L"y", L"<none>"}},
         {L"It has already been declared.\nx"}},
        {"the new name holds an old one", {L"var ab", L"var abc"}, {{L"abc", L"<none>"}},
         {L"It is contained in the variable declared.\nab/abc"}},
        {"an old name holds the new one", {L"var abc", L"var b"}, {{L"b", L"<none>"}},
         {L"It is contained in the variable declared.\nb/abc"}},
        {"an array holds its base", {L"var a[1]", L"var a"}, {{L"a", L"<none>"}},
         {L"It is contained in the variable declared.\na/a[0]"}},
        {"case matters for overlaps", {L"var ab", L"var AB"}, {{L"AB", L""}}},
        {"a negative size, in silence", {L"var a[-2]", L"var x"}, {{L"x", L"<none>"}}},
        {"the elements before a refusal stay", {L"var a[1]", L"var x", L"var a[3]"},
         {{L"a[0]", L""}, {L"a[1]", L"<none>"}}, {L"It has already been declared.\na[0]"}},
        {"var alone", {L"var", L"var x"}, {{L"x", L"<none>"}}, {SyntaxError(L"var")}},
        {"an empty name", {L"var  =1", L"var x"}, {{L"x", L"<none>"}}},
        {"only the whole word is reserved", {L"var iffy", L"var do1"}, {{L"iffy", L""}, {L"do1", L""}}},
        {"a declared variable named like a word that starts programs takes the value",
         {L"var run", L"run = C:\\Tools\\view.exe"}, {{L"run", L"C:\\Tools\\view.exe"}}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
}

TEST_F(ScriptVariablesTest, Conditions) {
    // outcome: "yes", "no", or "error".
    // clang-format off
    struct Case { const wchar_t* condition; const wchar_t* outcome; };
    const Case cases[] = {
        {L"0 == 00", L"yes"},        {L"a == A", L"yes"},          {L"a != A", L"no"},
        {L"10 < 9", L"no"},          {L"a10 < a9", L"no"},         {L"2 < 10", L"yes"},
        {L"b2 < b10", L"yes"},       {L"-1 < 1", L"yes"},          {L"5 <= 5", L"yes"},
        {L"5 >= 5", L"yes"},         {L"6 <= 5", L"no"},           {L"abc ^ A*", L"yes"},
        {L"abc ^ x*;*c", L"yes"},    {L"abc !^ A*", L"no"},        {L"abc ^ b", L"no"},
        {L"v > 10", L"no"},          {L"v == 0x7", L"yes"},        {L"a<b==c", L"no"},
        {L"a<b==a<b", L"yes"},       {L"== ", L"yes"},             {L"1 op 2", L"error"},
        {L"x", L"error"},            {L"?Year? < 3000", L"yes"},   {L"1 2 == 12", L"yes"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const std::wstring statement = std::wstring(L"if ") + c.condition;
        // No name may stand inside a condition's text: "r" would change "?Year?".
        RunLines(
            {L"var res = none", L"var v = 7", L"var op = <", statement, L"res = yes", L"else", L"res = no", L"endif"});
        const bool error = std::wstring(c.outcome) == L"error";
        EXPECT_EQ(error ? L"none" : c.outcome, Value(L"res")) << testing::PrintToString(statement);
        EXPECT_EQ(error ? std::vector<std::wstring>{SyntaxError(L"") + statement} : std::vector<std::wstring>{},
                  Messages())
            << testing::PrintToString(statement);
    }
}

}  // namespace
