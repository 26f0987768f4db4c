#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/script/ScriptFixture.h"

namespace {

constexpr const wchar_t* kOut = L"C:\\data\\out.txt";

const std::string kMark = "\xFF\xFE";

class ScriptFileWordsTest : public ScriptFixture {
protected:
    ScriptFileWordsTest() {
        fake.files().AddFile(L"C:\\data\\a.txt", Utf16Bytes(L"a1\r\na2\r\n", true));
        fake.files().AddFile(L"C:\\data\\b.txt", Utf16Bytes(L"b1\r\nb2", true));
    }
};

struct OutputCase {
    const char* label;
    std::vector<std::wstring> lines;
    std::string bytes;  // of C:\data\out.txt after the run, which held "old\r\n" before
    std::vector<std::wstring> messages;
};

TEST_F(ScriptFileWordsTest, WhatTheOutputFileHolds) {
    const std::wstring open = std::wstring(L"fileopen = ") + kOut;
    // clang-format off
    const OutputCase cases[] = {
        {"fileopen appends to a file that exists", {open, L"filewritea = new"}, "old\r\nnew\r\n", {}},
        {"fileopenmode right before empties it", {L"fileopenmode = 1", open, L"filewritea = new"}, "new\r\n", {}},
        {"fileopenmode with an empty value counts as set", {L"fileopenmode =", open, L"filewritea = new"}, "new\r\n",
         {}},
        {"fileopenmode 0 leaves it appending", {L"fileopenmode = 0", open, L"filewritea = new"}, "old\r\nnew\r\n", {}},
        {"the mode holds for one fileopen only",
         {L"fileopenmode = yes", open, L"filewritea = a", open, L"filewritea = b"}, "a\r\nb\r\n", {}},
        {"a failed fileopen clears the mode too, and the script goes on",
         {L"fileopenmode = 1", L"fileopen = C:\\missing\\x.txt", L"filewritea = lost", open, L"filewritea = new"},
         "old\r\nnew\r\n", {L"C:\\missing\\x.txt\nError 3.\r\n", L"File is not open."}},
        {"a directory cannot be opened", {L"fileopen = C:\\data"}, "old\r\n", {L"C:\\data\nError 5.\r\n"}},
        {"bomout then two filewritew: one mark",
         {L"fileopenmode = 1", open, L"bomout = 1", L"filewritew = a", L"filewritew = b"}, kMark + Wide(L"a\r\nb\r\n"),
         {}},
        {"bomout 0 writes no mark", {L"fileopenmode = 1", open, L"bomout = 0", L"filewritew = a"}, Wide(L"a\r\n"), {}},
        {"bomout with an empty value sets it", {L"fileopenmode = 1", open, L"bomout =", L"filewritew = a"},
         kMark + Wide(L"a\r\n"), {}},
        {"filewritea leaves the mark to the next filewritew",
         {L"fileopenmode = 1", open, L"bomout = 1", L"filewritea = a", L"filewritew = b"},
         "a\r\n" + kMark + Wide(L"b\r\n"), {}},
        {"filewritew without a file uses up the mark",
         {L"bomout = 1", L"filewritew = lost", L"fileopenmode = 1", open, L"filewritew = a"}, Wide(L"a\r\n"),
         {L"File is not open."}},
        {"filewritea without a file", {L"filewritea = lost"}, "old\r\n", {L"File is not open."}},
        {"filewritea writes the ANSI code page", {L"fileopenmode = 1", open, L"filewritea = \u00e9\u20ac\u0100"},
         "\xE9\x80?\r\n", {}},
        {"the text keeps its inner tabs and has its variables put in",
         {L"var $v = 42", L"fileopenmode = 1", open, L"filewritew =\ta\t$v\t", L"filewritea = x\ty"},
         Wide(L"a\t42\r\n") + "x\ty\r\n", {}},
        {"fileclose closes the file, also in a block that is passed over",
         {L"fileopenmode = 1", open, L"filewritea = a", L"if 1 == 2", L"FileClose", L"endif", L"filewritea = b"},
         "a\r\n", {L"File is not open."}},
        {"an included script has no file of its parent's",
         {open, L"include = C:\\data\\child.txt", L"filewritea = parent"}, "old\r\nparent\r\n", {L"File is not open."}},
    };
    // clang-format on
    fake.files().AddFile(L"C:\\data\\child.txt", Utf16Bytes(L"filewritea = child\r\n", true));
    for (const OutputCase& c : cases) {
        fake.files().AddFile(kOut, std::string_view("old\r\n"));
        RunLines(c.lines);
        EXPECT_EQ(c.bytes, fake.files().FileText(kOut)) << c.label;
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }
}

// The output file is the script's alone while open, no longer than the run; each run reads data from the top.
TEST_F(ScriptFileWordsTest, FileReadAndTheOutputFileHeldUntilClosed) {
    const std::wstring open = std::wstring(L"fileopen = ") + kOut;
    const std::wstring read = std::wstring(L"$x = fileread,") + kOut;
    fake.files().AddFile(L"C:\\data\\raw.txt", Utf16Bytes(L"0x10 + 1\r\n\r\n   \r\nlast", true));
    fake.files().AddFile(L"C:\\data\\c,d.txt", Utf16Bytes(L"comma", true));
    fake.files().AddFile(L"C:\\data\\long.txt",
                         Utf16Bytes(std::wstring(32766, L'x') + L"\r\n" + std::wstring(32767, L'y') + L"\r\nz"));
    // clang-format off
    const ScriptCase cases[] = {
        {"line by line, then ERROR at the end",
         {L"var $x", L"var $y", L"var $z", L"$x = fileread,C:\\data\\a.txt", L"$y = fileread,C:\\data\\a.txt",
          L"$z = fileread,C:\\data\\a.txt"}, {{L"$x", L"a1"}, {L"$y", L"a2"}, {L"$z", L"ERROR"}}},
        {"the name in any case", {L"var $x", L"$x = FileRead,C:\\data\\a.txt"}, {{L"$x", L"a1"}}},
        {"two paths in turn each start at the top",
         {L"var $x", L"var $y", L"var $z", L"$x = fileread,C:\\data\\a.txt", L"$y = fileread,C:\\data\\b.txt",
          L"$z = fileread,C:\\data\\a.txt"}, {{L"$x", L"a1"}, {L"$y", L"b1"}, {L"$z", L"a1"}}},
        {"a file that can't be opened leaves the variable as it was",
         {L"var $x = keep", L"$x = fileread,C:\\data\\none.txt", L"$x = &!"}, {{L"$x", L"keep!"}},
         {L"File is not open."}},
        {"lines are stored as they stand: not computed, not trimmed, empty when empty",
         {L"var $w", L"var $x", L"var $y", L"var $z", L"$w = fileread,C:\\data\\raw.txt",
          L"$x = fileread,C:\\data\\raw.txt", L"$y = fileread,C:\\data\\raw.txt", L"$z = fileread,C:\\data\\raw.txt"},
         {{L"$w", L"0x10 + 1"}, {L"$x", L""}, {L"$y", L"   "}, {L"$z", L"last"}}},
        {"the path is all behind the first comma, commas included", {L"var $x", L"$x = fileread,C:\\data\\c,d.txt"},
         {{L"$x", L"comma"}}},
        {"a line of 32,766 characters is read; a longer one is the end",
         {L"var $x", L"var $y", L"$x = fileread,C:\\data\\long.txt", L"$y = fileread,C:\\data\\long.txt"},
         {{L"$x", std::wstring(32766, L'x')}, {L"$y", L"ERROR"}}},
        {"fileallread gives the whole text behind the mark and leaves the position",
         {L"var $x", L"var $y", L"var $z", L"$x = fileread,C:\\data\\a.txt", L"$y = fileallread,C:\\data\\a.txt",
          L"$z = fileread,C:\\data\\a.txt"}, {{L"$x", L"a1"}, {L"$y", L"a1\r\na2\r\n"}, {L"$z", L"a2"}}},
        {"fileallread then fileread on the same path gets the first line",
         {L"var $y", L"var $z", L"$y = fileallread,C:\\data\\b.txt", L"$z = fileread,C:\\data\\b.txt"},
         {{L"$y", L"b1\r\nb2"}, {L"$z", L"b1"}}},
        {"fileallread of a file that can't be opened", {L"var $y = keep", L"$y = fileallread,C:\\data\\none.txt"},
         {{L"$y", L"keep"}}, {L"File is not open."}},
        {"while open, the script's own fileread is shut out",
         {L"var $x = keep", L"fileopenmode = 1", open, L"filewritew = a", read}, {{L"$x", L"keep"}},
         {L"File is not open."}},
        {"another fileopen closes the file first",
         {L"var $x = keep", L"fileopenmode = 1", open, L"filewritew = a", L"fileopen = C:\\data\\other.txt", read},
         {{L"$x", L"a"}}},
        {"fileclose lets it go", {L"var $x = keep", open, L"fileclose", read}, {{L"$x", L"a"}}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) Check(c);
    EXPECT_NE(nullptr, fake.files().Open(kOut, platform::FileAccess::Write, true)) << "the frame closed the file";
}

}  // namespace
