#include <gtest/gtest.h>

#include <map>

#include "script/ScriptFirstPass.h"
#include "unit/script/ScriptFixture.h"

namespace {

class ScriptFirstPassTest : public ScriptFixture {
protected:
    struct Outcome {
        bool goesOn;
        std::map<std::wstring, uint32_t> labels;
        std::vector<std::wstring> messages;
        platform::WindowRef traceWindow;
    };

    Outcome Pass(const std::vector<std::wstring>& lines) {
        fake.prompts().Clear();
        ScriptArguments arguments;
        arguments.scriptPath = AddScript(L"pass.txt", lines);
        arguments.selection = &selection;
        ScriptFrame frame(runner, arguments);
        EXPECT_TRUE(frame.reader.Open(arguments.scriptPath));
        Outcome outcome;
        outcome.goesOn = RunFirstPass(frame);
        outcome.labels.insert(frame.labels.begin(), frame.labels.end());
        outcome.messages = Messages();
        outcome.traceWindow = frame.TraceWindow;
        return outcome;
    }
};

TEST_F(ScriptFirstPassTest, LabelsByLine) {
    struct Case {
        const char* label;
        std::vector<std::wstring> lines;
        std::map<std::wstring, size_t> labels;  // label to the index of its line
    };
    const std::wstring longLine(32767, L'x');
    const Case cases[] = {
        {"plain label", {L"start:", L"x = 1"}, {{L"start", 0}}},
        {"blanks around", {L"x = 1", L"   start   :  "}, {{L"start", 1}}},
        {"a tab inside is a blank", {L"one\ttwo:"}, {{L"one two", 0}}},
        {"tabs around", {L"\tstart\t:\t"}, {{L"start", 0}}},
        {"single colon", {L":", L" : "}, {}},
        {"comment ending in a colon", {L"// see:", L"  //x:"}, {}},
        {"slashes later in the line", {L"a // b:"}, {{L"a // b", 0}}},
        {"statement ending in a colon", {L"messageboxok = Done:"}, {{L"messageboxok = Done", 0}}},
        {"case kept", {L"Start:", L"start:"}, {{L"Start", 0}, {L"start", 1}}},
        {"behind EOF", {L"a:", L"EOF", L"b:"}, {{L"a", 0}}},
        {"EOF in any case", {L"eOf", L"b:"}, {}},
        {"EOF with more is no end", {L"EOF now", L"b:"}, {{L"b", 1}}},
        {"do alone is skipped, do with a colon a label", {L"do", L"do:", L"DO:"}, {{L"do", 1}, {L"DO", 2}}},
        {"debug line is no label", {L"debug", L"x:"}, {{L"x", 1}}},
        {"an overlong line is the end", {L"a:", longLine, L"b:"}, {{L"a", 0}}},
        {"a line just short of the limit", {std::wstring(32766, L'y'), L"b:"}, {{L"b", 1}}},
    };
    for (const auto& c : cases) {
        const Outcome outcome = Pass(c.lines);
        std::map<std::wstring, uint32_t> expected;
        for (const auto& [name, index] : c.labels) expected[name] = OffsetOfLine(c.lines, index);
        EXPECT_TRUE(outcome.goesOn) << c.label;
        EXPECT_EQ(expected, outcome.labels) << c.label;
        EXPECT_TRUE(outcome.messages.empty()) << c.label;
    }
}

TEST_F(ScriptFirstPassTest, DebugFindsTheTraceWindowByTitle) {
    EXPECT_EQ(0u, Pass({L"debug"}).traceWindow);
    fake.windows().SetTitledWindow(L"Qor Script Debugger", 0x77);
    EXPECT_EQ(0u, Pass({L"DeBuG"}).traceWindow) << "only the first title is a trace target";
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x42);
    EXPECT_EQ(0x42u, Pass({L"  debug\t"}).traceWindow);
    EXPECT_EQ(0u, Pass({L"x = 1"}).traceWindow) << "no debug line, no trace";
    EXPECT_EQ(0u, Pass({L"EOF", L"debug"}).traceWindow) << "behind the end";
}

}  // namespace
