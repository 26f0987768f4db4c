#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/script/ScriptFixture.h"

namespace platform::fake {

void PrintTo(const ShownMessage& shown, std::ostream* os) {
    *os << testing::PrintToString(shown.caption) << " owner " << shown.owner << " flags " << shown.style << " "
        << testing::PrintToString(shown.text);
}

}  // namespace platform::fake

namespace {

using platform::fake::ShownMessage;

constexpr platform::WindowRef kHost = 0x4711;
constexpr platform::WindowRef kOptionWindow = 0x99;

// What the host heard: "post <message> <wParam> <lParam>", "send ..." or "copy <code> <text>".
struct HostCase {
    const char* label;
    std::vector<std::wstring> lines, heard, messages;
};

struct BoxCase {
    const char* label;
    std::vector<std::wstring> lines;
    std::vector<int> answers;
    std::vector<ShownMessage> shown;
    std::vector<std::pair<std::wstring, std::wstring>> values;
};

class ScriptHostWordsTest : public ScriptFixture {
protected:
    ScriptHostWordsTest() { fake.windows().SetMainWindow(kOptionWindow); }

    // Messages before copies, each from the given index on: a case uses one kind or keeps that order.
    std::vector<std::wstring> Heard(size_t fromMessage = 0, size_t fromCopy = 0) {
        std::vector<std::wstring> heard;
        const auto& messages = fake.windows().messages();
        for (size_t i = fromMessage; i < messages.size(); ++i) {
            EXPECT_EQ(kHost, messages[i].window);
            heard.push_back((messages[i].posted ? L"post " : L"send ") + std::to_wstring(messages[i].message) + L" " +
                            std::to_wstring(messages[i].wParam) + L" " + std::to_wstring(messages[i].lParam));
        }
        const auto& copies = fake.windows().copies();
        for (size_t i = fromCopy; i < copies.size(); ++i) {
            EXPECT_EQ(kHost, copies[i].window);
            EXPECT_EQ(kOptionWindow, copies[i].sender);
            EXPECT_EQ(copies[i].text.size() * 8 + 8, copies[i].cbData);
            heard.push_back(L"copy " + std::to_wstring(copies[i].code) + L" " + copies[i].text);
        }
        return heard;
    }

    void Check(const HostCase& c) {
        const size_t messages = fake.windows().messages().size();
        const size_t copies = fake.windows().copies().size();
        EXPECT_EQ(0, RunLines(c.lines)) << c.label;
        EXPECT_EQ(c.heard, Heard(messages, copies)) << c.label;
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }
};

TEST_F(ScriptHostWordsTest, WhatTheHostHears) {
    fake.windows().AddHostWindow(kHost);
    // clang-format off
    const HostCase cases[] = {
        {"each message word, its message and its call",
         {L"postmessage = 1", L"sendmessage = 2", L"postmessage1 = 3", L"postmessage2 = 4", L"postwait = 5",
          L"postmessagebar = 6", L"postmessageall = 7", L"sendmessageall = 8"},
         {L"post 273 1 0", L"send 273 2 0", L"post 32777 3 0", L"post 32778 4 0", L"post 32779 5 0", L"post 32780 6 0",
          L"post 32776 7 0", L"send 32776 8 0"}, {}},
        {"a second number is lParam; a third is ignored", {L"postmessage = 40001, 12", L"sendmessage = 7,8,9"},
         {L"post 273 40001 12", L"send 273 7 8"}, {}},
        {"variables are put in", {L"var id = 41000", L"postmessage = id,id"}, {L"post 273 41000 41000"}, {}},
        {"negative numbers reach the host as ints do", {L"postmessage = -1,-2"}, {L"post 273 18446744073709551615 -2"},
         {}},
        {"an empty value, a zero, hexadecimal and words are syntax errors",
         {L"postmessage =", L"sendmessage = 0,5", L"postwait = 0x10", L"postmessage1 = abc", L"postmessage = 9"},
         {L"post 273 9 0"},
         {SyntaxError(L"postmessage ="), SyntaxError(L"sendmessage = 0,5"), SyntaxError(L"postwait = 0x10"),
          SyntaxError(L"postmessage1 = abc")}},
        {"postmessagetab has no working form", {L"postmessagetab = 1,2", L"postmessagetab ="}, {},
         {SyntaxError(L"postmessagetab = 1,2"), SyntaxError(L"postmessagetab =")}},
        {"texts: expanded, raw and variables-only values",
         {L"var file = a.txt", L"select = file", L"fullstateopen = file", L"fullstateopenex = file",
          L"backgroundimage = file", L"listinnerparam = file", L"operationmode = file", L"tabletmode = file"},
         {L"copy 800 a.txt", L"copy 201 file", L"copy 201 a.txt", L"copy 1200 a.txt", L"copy 910 a.txt",
          L"copy 911 file", L"copy 912 file"}, {}},
        {"an empty value is sent too", {L"select ="}, {L"copy 800 "}, {}},
        {"system_command: code and text trimmed; without a comma no text",
         {L"system_command = 3000 ,  some, text ", L"system_command = 42", L"system_command = , x"},
         {L"copy 3000 some, text", L"copy 42 ", L"copy 0 x"}, {}},
        {"the jumps into the panes with full paths",
         {L"folderjump = 0, C:\\Data", L"folderjump = 3,C:\\Data\\..\\Tools\\", L"filejump = 1, a.txt",
          L"filejump = 2, C:\\x\\.\\y.txt", L"folderjump = 1, \\\\server"},
         {L"copy 100 C:\\Data", L"copy 400 C:\\Tools\\", L"copy 203 C:\\a.txt", L"copy 303 C:\\x\\y.txt",
          L"copy 200 \\\\server"}, {}},
        {"favorites 1 to 9, and 0 for the tenth", {L"favoritejump = 0, C:\\Data", L"favoritejump = 9,a"},
         {L"copy 901 10/C:\\Data", L"copy 901 9/C:\\a"}, {}},
        {"the host counts ubjump from 0; the text stays as it is",
         {L"var file = a.txt", L"ubjump = 1, file", L"ubjump = 10,..\\x", L"ubjump = 2,"},
         {L"copy 1003 0/a.txt", L"copy 1003 9/..\\x", L"copy 1003 1/"}, {}},
        {"a pane out of range is reported and the run goes on",
         {L"folderjump = 4, C:\\Data", L"filejump = -1, C:\\Data", L"select = after"}, {L"copy 800 after"},
         {SyntaxError(L"folderjump = 4, C:\\Data"), SyntaxError(L"filejump = -1, C:\\Data")}},
        {"a command wins over a variable of its name", {L"var select", L"select = 5"}, {L"copy 800 5"}, {}},
    };
    // clang-format on
    for (const HostCase& c : cases) Check(c);
    EXPECT_EQ(L"", Value(L"select")) << "the assignment is lost";
    // A jump of the wrong form ends the run.
    for (const wchar_t* jump : {L"folderjump = 1,", L"favoritejump = 10, C:\\Data", L"favoritejump = 2,",
                                L"filejump = 1", L"ubjump = 0, x", L"ubjump = 11, x"})
        Check({"a jump of the wrong form", {jump, L"select = after"}, {}, {SyntaxError(jump)}});
}

TEST_F(ScriptHostWordsTest, MessageBoxes) {
    fake.windows().AddHostWindow(kHost);
    auto box = [](const std::wstring& text, unsigned flags) { return ShownMessage{text, flags, L"Qor", kHost}; };
    // clang-format off
    const BoxCase cases[] = {
        {"flags as written, the text expanded",
         {L"var file = a.txt", L"messagebox = 0x40, Open file?", L"messagebox = 0X21,x", L"messagebox = 010 , y",
          L"messagebox = file, z, and more"}, {},
         {box(L"Open a.txt?", 64), box(L"x", 33), box(L"y", 10), box(L"z, and more", 0)}, {}},
        {"ok and yes-no",
         {L"var file = a.txt", L"messageboxok = Done with file", L"messageboxyn = Go on?", L"var after"},
         {platform::kAnswerOk, platform::kAnswerYes}, {box(L"Done with a.txt", 48), box(L"Go on?", 36)},
         {{L"after", L""}}},
        {"No ends the run", {L"messageboxyn = Go on?", L"var after"}, {platform::kAnswerNo}, {box(L"Go on?", 36)},
         {{L"after", L"<none>"}}},
        {"functions give the button and take their text as it stands",
         {L"var res1", L"var res2", L"var res3", L"res1 = messagebox, 0x24, Sure?", L"res2 = MessageBoxOK, one, two",
          L"res3 = messageboxyn,Really?", L"var after"},
         {platform::kAnswerYes, platform::kAnswerOk, platform::kAnswerNo},
         {box(L" Sure?", 36), box(L" one, two", 48), box(L"Really?", 36)},
         {{L"res1", L"6"}, {L"res2", L"1"}, {L"res3", L"7"}, {L"after", L""}}},
        {"messagebox needs flags and a text to be a function", {L"var res", L"res = messagebox, 48"}, {}, {},
         {{L"res", L"messagebox, 48"}}},
        {"a command of the variable's name wins and the box is never shown",
         {L"var select", L"select = messageboxok, hi"}, {}, {}, {{L"select", L""}}},
        {"a variable named like a box statement gets the value after the box",
         {L"var messageboxok", L"messageboxok = hi"}, {}, {box(L"hi", 48)}, {{L"messageboxok", L"hi"}}},
    };
    // clang-format on
    for (const BoxCase& c : cases) {
        answers = c.answers;
        EXPECT_EQ(0, RunLines(c.lines)) << c.label;
        EXPECT_EQ(c.shown, fake.prompts().shown()) << c.label;
        for (const auto& [name, value] : c.values) EXPECT_EQ(value, Value(name)) << c.label << ": " << name;
    }
    EXPECT_EQ((std::vector<std::wstring>{L"copy 800 messageboxok, hi"}), Heard());
}

}  // namespace
