#include <gtest/gtest.h>

#include "unit/script/ScriptFixture.h"

namespace {

class ScriptControlFlowTest : public ScriptFixture {};

// Blocks, loops and jumps; a question about a line is answered Yes.
TEST_F(ScriptControlFlowTest, BlocksLoopsAndJumps) {
    selection = {L"C:\\a.txt", L"C:\\b.txt", L"C:\\c.txt"};
    // clang-format off
    const ScriptCase cases[] = {
        {"then of true, else of true with an if inside, then of false with an if inside, else of false",
         {L"var t = _", L"if 1 == 1", L"t = &a", L"if 1 == 2", L"t = &X", L"if 1 == 1", L"t = &X", L"else", L"t = &X",
          L"endif", L"else", L"t = &b", L"endif", L"else", L"t = &X", L"if 1 == 1", L"t = &X", L"else", L"t = &X",
          L"endif", L"t = &X", L"endif", L"t = &c"}, {{L"t", L"_abc"}}},
        {"an if that is skipped is not evaluated",
         {L"var t = _", L"if 1 == 2", L"if nonsense", L"endif", L"ELSE", L"t = &a", L"EndIf", L"t = &b"},
         {{L"t", L"_ab"}}},
        {"else and endif without an if are lines nobody understands", {L"checkgrammar = 1", L"else", L"endif"}, {},
         {NotUnderstood(L"2:else"), NotUnderstood(L"3:endif")}},
        {"a second else runs its lines", {L"var t = _", L"if 1 == 2", L"else", L"t = &a", L"else", L"t = &b", L"endif"},
         {{L"t", L"_ab"}}},
        {"an endif with a comment closes nothing",
         {L"var t = _", L"if 1 == 2", L"endif // done", L"t = &X", L"endif", L"t = &a"}, {{L"t", L"_a"}}},
        {"else with an if behind it is no else", {L"var t = _", L"if 1 == 1", L"else if 1 == 1", L"t = &a", L"endif"},
         {{L"t", L"_a"}}},
        {"do while", {L"var i = 0", L"do", L"i = +1", L"while i < 5", L"i = &!"}, {{L"i", L"5!"}}},
        {"continue in a do goes back without the test",
         {L"var i = 0", L"var s = _", L"do", L"i = +1", L"if i == 2", L"continue", L"endif", L"s = &,i",
          L"while i < 3"}, {{L"s", L"_,1,3"}}},
        {"break skips to the while",
         {L"var i = 0", L"do", L"i = +1", L"if i == 2", L"break", L"endif", L"while i < 9", L"i = &!"},
         {{L"i", L"2!"}}},
        {"for runs once per item", {L"var s = _", L"for each", L"s = &?Name?", L"next", L"s = &!"}, {{L"s", L"_abc!"}}},
        {"continue and break in a for",
         {L"var s = _", L"for", L"if ?Name? == a", L"continue", L"endif", L"s = &?Name?", L"if ?Name? == b", L"break",
          L"endif", L"next", L"s = &!"}, {{L"s", L"_b!"}}},
        {"a line beginning with do opens a loop", {L"var double = 1", L"double = 2", L"while 1 == 2"},
         {{L"double", L"1"}}},
        {"DO in capitals is no loop", {L"checkgrammar = 1", L"DO"}, {}, {NotUnderstood(L"2:DO")}},
        {"continue and break without a loop go on", {L"var t = _", L"continue", L"break now", L"t = &a"},
         {{L"t", L"_a"}},
         {L"'continue' was used without 'do' or 'for'\ncontinue",
          L"'break' was used without 'do' or 'for'\nbreak now"}},
        {"nested for share the item: the outer next finds none",
         {L"var n = 0", L"for", L"for", L"n = +1", L"next", L"next", L"n = &!"}, {{L"n", L"3"}},
         {L"'next' was used without 'for'\nnext"}},
        {"while without do", {L"while 1 == 1", L"var x"}, {{L"x", L"<none>"}},
         {L"'while' was used without 'do'\nwhile 1 == 1"}},
        {"while without a condition", {L"do", L"while", L"var x"}, {{L"x", L"<none>"}}, {SyntaxError(L"while")}},
        {"while whose condition has no operator", {L"do", L"while 1", L"var x"}, {{L"x", L"<none>"}},
         {SyntaxError(L"while 1")}},
        {"five backward jumps pass, the sixth ends the run", {L"var n = 0", L"top:", L"n = +1", L"goto top", L"n = &!"},
         {{L"n", L"6"}}, {L"The number of repetitions of up too many.(5 times)"}},
        {"the limit is a run option", {L"exitloopcount = 2", L"var n = 0", L"top:", L"n = +1", L"goto top"},
         {{L"n", L"3"}}, {L"The number of repetitions of up too many.(2 times)"}},
        {"forward jumps are free and the label is expanded",
         {L"var count = 0", L"var dest = fin", L"top:", L"count = +1", L"goto dest", L"count = &!", L"fin:",
          L"if count < 9", L"goto top", L"endif"}, {{L"count", L"6"}},
         {L"The number of repetitions of up too many.(5 times)"}},
        {"an undefined label", {L"goto nowhere", L"var x"}, {{L"x", L"<none>"}}, {L"Undefined label.\ngoto nowhere"}},
        {"goto alone", {L"goto", L"var x"}, {{L"x", L"<none>"}}, {SyntaxError(L"goto")}},
        {"a goto out of an if leaves its endif unpartnered",
         {L"checkgrammar = 1", L"var v = _", L"if 1 == 1", L"goto out", L"endif", L"out:", L"endif", L"v = &a"},
         {{L"v", L"_a"}}, {NotUnderstood(L"7:endif")}},
    };
    // clang-format on
    answers = {platform::kAnswerYes, platform::kAnswerYes};
    for (const ScriptCase& c : cases) Check(c);
}

// Labels are read before the run: any line ending in a colon names one, trimmed, a tab inside read as
// a blank and case kept; comments, a lone colon and everything from the end of the file on name none.
TEST_F(ScriptControlFlowTest, WhereAGotoLands) {
    const std::wstring longest(32766, L'y');
    // clang-format off
    const ScriptCase cases[] = {
        {"blanks and tabs around, a tab inside",
         {L"var $v = _", L"goto start", L"$v = &X", L"   start   :  ", L"goto one two", L"$v = &X", L"one\ttwo:",
          L"goto last", L"$v = &X", L"\tlast\t:\t", L"$v = &a"}, {{L"$v", L"_a"}}},
        {"slashes later in the line, a statement ending in a colon, and case kept",
         {L"var $v = _", L"goto a // b", L"$v = &X", L"a // b:", L"goto select = x", L"$v = &X", L"select = x:",
          L"goto Start", L"$v = &X", L"start:", L"$v = &X", L"Start:", L"$v = &a"}, {{L"$v", L"_a"}}},
        {"do with a colon is a label", {L"var $v = _", L"goto do", L"$v = &X", L"do:", L"$v = &a"}, {{L"$v", L"_a"}}},
        {"a comment ending in a colon is none", {L"goto // see", L"// see:", L"var $v"}, {{L"$v", L"<none>"}},
         {L"Undefined label.\ngoto // see"}},
        {"lone colons are none, so never twice", {L":", L" : ", L"var $v"}, {{L"$v", L""}}},
        {"EOF in any case ends the labels", {L"goto b", L"eOf", L"b:"}, {}, {L"Undefined label.\ngoto b"}},
        {"EOF with more is no end", {L"var $v = _", L"goto b", L"EOF now", L"b:", L"$v = &a"}, {{L"$v", L"_a"}}},
        {"a line of 32,766 characters is read", {L"var $v = _", L"goto b", longest, L"b:", L"$v = &a"},
         {{L"$v", L"_a"}}},
        {"a longer one is the end", {L"goto b", longest + L"y", L"b:"}, {}, {L"Undefined label.\ngoto b"}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
}

TEST_F(ScriptControlFlowTest, EveryWayARunEnds) {
    // No variable name may stand in the paths: substitution would change them.
    AddScript(L"exit.txt", {L"w = &c", L"exit", L"w = &X"});
    AddScript(L"exitall.txt", {L"w = &c", L"exitall", L"w = &X"});
    const std::wstring dir = kScriptDirectory;
    // clang-format off
    const ScriptCase cases[] = {
        {"the end of the file", {L"var x = a"}, {{L"x", L"a"}}},
        {"EOF, also inside a skipped block", {L"var x = a", L"if 1 == 2", L"eof", L"endif", L"x = &X"}, {{L"x", L"a"}}},
        {"exit", {L"var x = a", L"Exit", L"x = &X"}, {{L"x", L"a"}}},
        {"exitall", {L"var x = a", L"exitall", L"x = &X"}, {{L"x", L"a"}}, {}, -1},
        {"exit in an included script ends that script", {L"var w = a", L"include = " + dir + L"exit.txt", L"w = &d"},
         {{L"w", L"acd"}}},
        {"exitall in an included script ends all", {L"var w = a", L"include = " + dir + L"exitall.txt", L"w = &d"},
         {{L"w", L"ac"}}, {}, -1},
        {"a for over no items skips to its next", {L"var s = _", L"for", L"s = &X", L"exitall", L"NEXT", L"s = &!"},
         {{L"s", L"_!"}}},
        {"if alone", {L"if", L"var x"}, {{L"x", L"<none>"}}, {SyntaxError(L"if")}},
        {"if without an operator", {L"if 1", L"var x"}, {{L"x", L"<none>"}}, {SyntaxError(L"if 1")}},
        {"an unknown line answered No", {L"checkgrammar = 1", L"var x = a", L"frobnicate", L"x = &X"}, {{L"x", L"a"}},
         {NotUnderstood(L"3:frobnicate")}},
        {"a messagebox line without a comma is not understood",
         {L"checkgrammar = 1", L"var x = a", L"messagebox = hello", L"x = &X"}, {{L"x", L"a"}},
         {NotUnderstood(L"3:messagebox = hello")}},
        {"a label line is known", {L"checkgrammar = 1", L"var x = a", L"top :", L"x = &b"}, {{L"x", L"ab"}}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
}

}  // namespace
