#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "services/Format.h"
#include "unit/script/ScriptFixture.h"

namespace {

constexpr const wchar_t* kBase = L"Software\\Tarnwick\\Qor\\Main001\\";

class ScriptSystemWordsTest : public ScriptFixture {
protected:
    // "dword:<n>" or "sz:<text up to its NUL>/<bytes>" of a value under the scripts' key. The system
    // stores a string's terminator when it stands right behind the counted bytes, hence two bytes more.
    std::wstring Stored(const std::wstring& key, const std::wstring& name) {
        std::unique_ptr<platform::RegistryKey> handle;
        if (fake.registry().OpenKey(kBase + key, handle) != platform::kRegistryOk) return L"<no key>";
        uint8_t data[256] = {};
        uint32_t type = 0;
        uint32_t size = sizeof data;
        if (handle->QueryValue(name, &type, data, &size) != platform::kRegistryOk) return L"<none>";
        if (type == platform::kRegDword)
            return crt::Format(L"dword:%u",
                               data[0] | data[1] << 8 | data[2] << 16 | static_cast<uint32_t>(data[3]) << 24);
        std::wstring text;
        for (uint32_t i = 0; i + 1 < size && (data[i] || data[i + 1]); i += 2)
            text.push_back(static_cast<wchar_t>(data[i] | data[i + 1] << 8));
        return crt::Format(L"sz:%s/%u", text, size);
    }
};

struct RegistryCase {
    const char* label;
    std::vector<std::wstring> lines;
    // key, value name, what it holds afterwards
    std::vector<std::vector<std::wstring>> stored;
};

TEST_F(ScriptSystemWordsTest, RegistryWords) {
    // clang-format off
    const RegistryCase cases[] = {
        {"a number, hexadecimal made decimal", {L"writeregnum = k,n,0x10"}, {{L"k", L"n", L"dword:16"}}},
        {"the one field a writes 0 under name a in key a", {L"writeregnum = a"}, {{L"a", L"a", L"dword:0"}}},
        {"a missing number repeats the name", {L"writeregnum = k,m"}, {{L"k", L"m", L"dword:0"}}},
        {"numbers are read as far as they go, and a sign makes no script number",
         {L"writeregnum = k,p,12abc", L"writeregnum = k,q,-1", L"writeregnum = k,r,0 x 1 0"},
         {{L"k", L"p", L"dword:12"}, {L"k", L"q", L"dword:4294967295"}, {L"k", L"r", L"dword:16"}}},
        {"fields are not trimmed", {L"writeregnum = k, t , 7"}, {{L"k", L" t ", L"dword:7"}}},
        {"an empty field writes nothing and creates no key",
         {L"writeregnum = ,n,5", L"writeregnum = e1,,5", L"writeregnum = e2,n,", L"writeregstring = e3,,x",
          L"writeregstring = e4,n,", L"writeregnum =", L"writeregstring ="},
         {{L"e1", L"n", L"<no key>"}, {L"e2", L"n", L"<no key>"}, {L"e3", L"n", L"<no key>"},
          {L"e4", L"n", L"<no key>"}}},
        {"the value is taken as written, variables and macros too",
         {L"var $v = 5", L"writeregnum = k,v,$v", L"writeregstring = k,w,$v ?Date?"},
         {{L"k", L"v", L"dword:0"}, {L"k", L"w", L"sz:$v ?Date?/20"}}},
        {"a string is all that stands behind the name, commas included", {L"writeregstring = k,s,a, b,c"},
         {{L"k", L"s", L"sz:a, b,c/14"}}},
        {"a missing string repeats the name", {L"writeregstring = k,u"}, {{L"k", L"u", L"sz:u/4"}}},
        {"the key may go deeper", {L"writeregstring = k\\sub,s,x"}, {{L"k\\sub", L"s", L"sz:x/4"}}},
        {"the word in any case", {L"WriteRegNum = k,c,3"}, {{L"k", L"c", L"dword:3"}}},
    };
    // clang-format on
    for (const RegistryCase& c : cases) {
        RunLines(c.lines);
        EXPECT_EQ(std::vector<std::wstring>{}, Messages()) << c.label;
        for (const auto& value : c.stored) EXPECT_EQ(value[2], Stored(value[0], value[1])) << c.label;
    }
}

// The clipboard's text, the screen's metrics by index, and the speech words, which only check their value.
TEST_F(ScriptSystemWordsTest, ClipboardMetricsAndSpeech) {
    fake.environment().SetSystemMetric(80, 2);
    // clang-format off
    const ScriptCase cases[] = {
        {"nothing on the clipboard empties the variable", {L"var $x = keep", L"$x = GetClipboardText"}, {{L"$x", L""}}},
        {"setclipboardtext then GetClipboardText",
         {L"var $x", L"var $v = 7", L"setclipboardtext = a $v ", L"$x = GetClipboardText"}, {{L"$x", L"a 7"}}},
        {"the name in any case, the text as it was copied",
         {L"var $x", L"setclipboardtext = 0x10 + 1", L"$x = getCLIPBOARDtext"}, {{L"$x", L"0x10 + 1"}}},
        {"a character outside the ANSI code page is lost",
         {L"var $x", L"setclipboardtext = \u00e9\u0100", L"$x = GetClipboardText"}, {{L"$x", L"\u00e9?"}}},
        {"anything behind the name makes it no function",
         {L"var $x", L"var $y", L"$x = GetClipboardText,", L"$y = GetClipboardText, 1"},
         {{L"$x", L"GetClipboardText,"}, {L"$y", L"GetClipboardText, 1"}}},
        {"an empty text empties the clipboard's text",
         {L"var $x = keep", L"setclipboardtext =", L"$x = GetClipboardText"}, {{L"$x", L""}}},
        {"GetSystemMetrics takes its index as a number",
         {L"var $w", L"var $h", L"var $m", L"var $n", L"$w = GetSystemMetrics,0", L"$h = getsystemmetrics, 1 ",
          L"$m = GetSystemMetrics,80,5", L"$n = GetSystemMetrics,-1"},
         {{L"$w", L"1920"}, {L"$h", L"1080"}, {L"$m", L"2"}, {L"$n", L"0"}}},
        {"a speech word with an empty value is a syntax error, and the script goes on",
         {L"var $e", L"speachflag =", L"SpeachVolume =", L"speachratespeed = $e", L"speachpitch =  ", L"var $x"},
         {{L"$x", L""}},
         {SyntaxError(L"speachflag ="), SyntaxError(L"SpeachVolume ="), SyntaxError(L"speachratespeed = $e"),
          SyntaxError(L"speachpitch =")}},
        {"a speech word with any value does nothing",
         {L"speachflag = 1", L"speachvolume = loud", L"speachratespeed = 0", L"speachpitch = -3"}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
    EXPECT_EQ(L"", fake.system().clipboardText());

    fake.system().PutClipboardAnsiText("caf\xE9");
    Check({"another program's ANSI text", {L"var $x", L"$x = GetClipboardText"}, {{L"$x", L"caf\u00e9"}}});
    fake.system().HoldClipboard(true);
    Check({"a clipboard another program holds open",
           {L"var $x = keep", L"setclipboardtext = lost", L"$x = GetClipboardText"},
           {{L"$x", L""}}});
    fake.system().HoldClipboard(false);
    Check({"and the text is still there", {L"var $x", L"$x = GetClipboardText"}, {{L"$x", L"caf\u00e9"}}});
}

TEST_F(ScriptSystemWordsTest, Wait) {
    // clang-format off
    struct Case { const char* label; std::vector<std::wstring> lines; uint64_t waited; };
    // clang-format on
    const Case cases[] = {
        {"milliseconds", {L"wait = 250"}, 250},
        {"the value expanded", {L"var $ms = 40", L"wait = $ms"}, 40},
        {"no number, no wait", {L"wait = 0", L"wait = abc", L"wait ="}, 0},
        {"not in a block that is passed over", {L"if 1 == 2", L"wait = 100", L"endif"}, 0},
    };
    for (const Case& c : cases) {
        const uint64_t before = fake.processes().Ticks();
        RunLines(c.lines);
        EXPECT_EQ(c.waited, fake.processes().Ticks() - before) << c.label;
    }
}

}  // namespace
