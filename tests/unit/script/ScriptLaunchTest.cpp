// "exrun" entries run once the script has ended, each item to the first entry whose filter takes it.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "unit/script/ScriptFixture.h"

namespace {

constexpr platform::WindowRef kHost = 0x4711;

class ScriptLaunchTest : public ScriptFixture {
protected:
    ScriptLaunchTest() {
        nowDirectory = L"C:\\Now";
        fake.files().AddFile(L"C:\\T\\view.exe", std::string_view());
        fake.files().AddDirectory(L"C:\\Data");
        fake.files().AddShellFolder(L"::{FOLDER}");
        fake.windows().AddHostWindow(kHost);
    }

    // Each start through the shell as "program parameters @ directory", from the given one on.
    std::vector<std::wstring> Starts(size_t from = 0) {
        std::vector<std::wstring> started;
        const auto& requests = fake.processes().shellRequests();
        for (size_t i = from; i < requests.size(); ++i)
            started.push_back(requests[i].file +
                              (requests[i].parameters.empty() ? L"" : L" " + requests[i].parameters) + L" @ " +
                              requests[i].directory);
        return started;
    }

    // What a script starts: folders handed to the host as "host <code> <folder>", then the shell's
    // starts, then the programs started with the items dropped on them as "drop <command line>".
    std::vector<std::wstring> RunFor(const std::vector<std::wstring>& lines) {
        const size_t copies = fake.windows().copies().size(), requests = fake.processes().shellRequests().size();
        const size_t drops = fake.processes().starts().size();
        RunLines(lines);
        std::vector<std::wstring> started;
        for (size_t i = copies; i < fake.windows().copies().size(); ++i) {
            const auto& copy = fake.windows().copies()[i];
            EXPECT_EQ(kHost, copy.window);
            started.push_back(L"host " + std::to_wstring(copy.code) + L" " + copy.text);
        }
        for (const std::wstring& start : Starts(requests)) started.push_back(start);
        for (size_t i = drops; i < fake.processes().starts().size(); ++i)
            started.push_back(L"drop " + fake.processes().starts()[i].commandLine);
        return started;
    }
};

// An included script runs its entries before the parent goes on; a list that shrank under them ends the whole run.
TEST_F(ScriptLaunchTest, WhatStartsAndWhen) {
    const std::wstring include = std::wstring(L"include = ") + kScriptDirectory;
    AddScript(L"child.txt", {L"commandlineoption = ?SelFile?", L"exrun = child.exe"});
    AddScript(L"shrink.txt", {L"commandlineoption = ?SelFile?", L"exrun = v.exe", L"removeselectitems = *.txt"});
    struct Case {
        const char* label;
        std::vector<std::wstring> lines, started;
    };
    const std::vector<std::wstring> viewAll = {L"C:\\T\\view.exe \"C:\\Data\\a.txt\" @ C:\\Now",
                                               L"C:\\T\\view.exe \"C:\\Data\\b.jpg\" @ C:\\Now",
                                               L"C:\\T\\view.exe \"C:\\Data\\c.TXT\" @ C:\\Now"};
    // clang-format off
    const Case cases[] = {
        {"run starts at once for every item, and the first target decides for the later lines",
         {L"commandlineoption = /v ?SelFile?", L"run = C:\\T\\view.exe", L"commandlineoption = /w",
          L"run = C:\\T\\view.exe"},
         {L"C:\\T\\view.exe /v \"C:\\Data\\a.txt\" @ C:\\Now", L"C:\\T\\view.exe /v \"C:\\Data\\b.jpg\" @ C:\\Now",
          L"C:\\T\\view.exe /v \"C:\\Data\\c.TXT\" @ C:\\Now", L"C:\\T\\view.exe /w @ C:\\Now"}},
        {"filters in the order of the lines",
         {L"commandlineoption = ?SelFile?", L"filter = txt", L"exrun = C:\\T\\edit.exe", L"filter =",
          L"exrun = C:\\T\\view.exe"},
         {L"C:\\T\\edit.exe \"C:\\Data\\a.txt\" @ C:\\Now", L"C:\\T\\view.exe \"C:\\Data\\b.jpg\" @ C:\\Now",
          L"C:\\T\\edit.exe \"C:\\Data\\c.TXT\" @ C:\\Now"}},
        {"nothing until the script has ended",
         {L"commandlineoption = ?SelFile?", L"exrun = C:\\T\\view.exe", L"commandlineoption = /x ?SelFile?",
          L"var x = 1"}, viewAll},
        {"an entry without an item macro starts nothing", {L"commandlineoption = /all", L"exrun = C:\\T\\view.exe"},
         {}},
        {"an empty program is no entry", {L"commandlineoption = ?SelFile?", L"exrun = "}, {}},
        {"previewbar belongs to the host, and the next entry gets the item",
         {L"commandlineoption = ?SelFile?", L"filter = jpg", L"exrun = PreviewBar", L"filter =",
          L"exrun = C:\\T\\view.exe"}, viewAll},
        {"bootdir: the now-directory, the program's own, or as written",
         {L"commandlineoption = ?SelFile?", L"filter = txt", L"bootdir = 1", L"exrun = C:\\T\\edit.exe",
          L"filter = jpg", L"bootdir = C:\\Work", L"exrun = C:\\T\\view.exe"},
         {L"C:\\T\\edit.exe \"C:\\Data\\a.txt\" @ C:\\T\\", L"C:\\T\\view.exe \"C:\\Data\\b.jpg\" @ C:\\Work",
          L"C:\\T\\edit.exe \"C:\\Data\\c.TXT\" @ C:\\T\\"}},
        {"EOF runs them", {L"commandlineoption = ?SelFile?", L"filter = jpg", L"exrun = v.exe", L"EOF", L"exit"},
         {L"v.exe \"C:\\Data\\b.jpg\" @ C:\\Now"}},
        {"exit does not", {L"commandlineoption = ?SelFile?", L"exrun = v.exe", L"exit"}, {}},
        {"nor a syntax error that ends the run", {L"commandlineoption = ?SelFile?", L"exrun = v.exe", L"if"}, {}},
        {"the items the script started with, not those it added",
         {L"commandlineoption = ?SelFile?", L"filter = jpg", L"exrun = v.exe", L"appendselectitem = C:\\x.jpg"},
         {L"v.exe \"C:\\Data\\b.jpg\" @ C:\\Now"}},
        {"a failed jump still runs them",
         {L"commandlineoption = ?SelFile?", L"filter = jpg", L"exrun = v.exe", L"folderjump = 0,"},
         {L"v.exe \"C:\\Data\\b.jpg\" @ C:\\Now"}},
        {"too many backward jumps still run them",
         {L"commandlineoption = ?SelFile?", L"filter = jpg", L"exrun = v.exe", L"exitloopcount = 0", L"top:",
          L"goto top"}, {L"v.exe \"C:\\Data\\b.jpg\" @ C:\\Now"}},
        {"an included script's entries first",
         {include + L"child.txt", L"openmode = 1", L"run = p.exe", L"exrun = o.exe"},
         {L"child.exe \"C:\\Data\\a.txt\" @ C:\\Now", L"child.exe \"C:\\Data\\b.jpg\" @ C:\\Now",
          L"child.exe \"C:\\Data\\c.TXT\" @ C:\\Now", L"p.exe \"C:\\Data\\a.txt\" @ C:\\Now",
          L"p.exe \"C:\\Data\\b.jpg\" @ C:\\Now", L"p.exe \"C:\\Data\\c.TXT\" @ C:\\Now",
          L"o.exe \"C:\\Data\\a.txt\" @ C:\\Now", L"o.exe \"C:\\Data\\b.jpg\" @ C:\\Now",
          L"o.exe \"C:\\Data\\c.TXT\" @ C:\\Now"}},
        {"a list that shrank under an included script's entries ends the parent too",
         {include + L"shrink.txt", L"openmode = 1", L"run = p.exe"}, {L"v.exe \"C:\\Data\\b.jpg\" @ C:\\Now"}},
        {"a directory goes to the host, and so does every later target, as its folder",
         {L"run = C:\\Data", L"run = C:\\T\\view.exe"}, {L"host 200 C:\\Data", L"host 200 C:\\T"}},
        {"a path that cannot be looked at counts as a directory", {L"run =  C:\\Gone "}, {L"host 200 C:\\Gone"}},
        {"nothing to run decides nothing", {L"run =   ", L"run = ::{FOLDER}"}, {L"host 200 ::{FOLDER}"}},
        {"a name-space item that is no folder starts", {L"run = ::{ITEM}"}, {L"::{ITEM} @ C:\\Now"}},
        {"openmode 2 hands the host a file's folder", {L"openmode = 2", L"run = C:\\T\\view.exe"},
         {L"host 100 C:\\T"}},
        {"openmode 5 ignores the targets", {L"openmode = 5", L"run = C:\\T\\view.exe"}, {}},
        {"bootdir 1 and a trailing separator: the parent", {L"openmode = 1", L"bootdir = 1", L"run = C:\\T\\App\\"},
         {L"C:\\T\\App\\ @ C:\\T\\"}},
        {"run does not see variables, shell does",
         {L"var $tool = C:\\T\\view.exe", L"openmode = 1", L"run = $tool", L"shell = $tool"},
         {L"$tool @ C:\\Now", L"C:\\T\\view.exe @ C:\\Now"}},
        {"sendinfomode drops the items on the program", {L"sendinfomode = 1", L"run = C:\\T\\view.exe"},
         {L"drop C:\\T\\view.exe"}},
        {"without entries a shrunk list ends nothing",
         {L"removeselectitems", L"openmode = 1", L"commandlineoption = /x", L"run = p.exe"}, {L"p.exe /x @ C:\\Now"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        selection = {L"C:\\Data\\a.txt", L"C:\\Data\\b.jpg", L"C:\\Data\\c.TXT"};
        EXPECT_EQ(c.started, RunFor(c.lines)) << c.label;
    }
}

// Alternatives are offered per item with the item's name; Cancel counts as dealt with.
TEST_F(ScriptLaunchTest, AlternativesAreOfferedPerItem) {
    selection = {L"C:\\Data\\a.txt", L"C:\\Data\\b.txt"};
    fake.prompts().Choose(1);
    Run(AddScript(L"choose.txt",
                  {L"commandlineoption = ?SelFile?", L"exrun = edit.exe | view.exe", L"exrun = last.exe"}));
    const std::vector<std::wstring> started = Starts();
    EXPECT_EQ(std::vector<std::wstring>{L"view.exe \"C:\\Data\\a.txt\" @ C:\\Now"}, started);
    ASSERT_EQ(2u, fake.prompts().offered().size());
    EXPECT_EQ((platform::ChoiceRequest{L"Please select an application.", L"b.txt", {L"edit.exe", L"view.exe"}}),
              fake.prompts().offered()[1]);
}

// A checkgrammar other than "1" is the user's editor, started at that line with handles inherited.
TEST_F(ScriptLaunchTest, UnknownLineAnsweredNoOpensTheEditorAtIt) {
    const std::wstring editor = L"edit.exe /l:?ErrorLine?";
    // what, the option, whether the editor starts, what started
    using Case = std::tuple<const char*, std::wstring, bool, std::vector<std::wstring>>;
    for (const auto& [what, grammar, starts, started] :
         {Case{"only asked", L"1", true, {}}, Case{"the editor at the line", editor, true, {L"edit.exe /l:3"}},
          Case{"an editor that cannot start", editor, false, {L"edit.exe /l:3"}}}) {
        const size_t before = fake.processes().starts().size();
        fake.processes().SetProgram({.starts = starts});
        answers = {platform::kAnswerNo};
        RunLines({L"checkgrammar = " + grammar, L"var x = a", L"frobnicate", L"x = &b"});
        EXPECT_EQ(L"a", Value(L"x")) << what << ": the run ended at the line";
        std::vector<std::wstring> editors;
        for (size_t i = before; i < fake.processes().starts().size(); ++i) {
            EXPECT_TRUE(fake.processes().starts()[i].inheritHandles) << what;
            editors.push_back(fake.processes().starts()[i].commandLine);
        }
        EXPECT_EQ(started, editors) << what;
        // The question, and when the editor cannot start the reason behind the option.
        ASSERT_FALSE(Messages().empty());
        EXPECT_EQ(NotUnderstood(L"3:frobnicate"), Messages().front()) << what;
        EXPECT_EQ(starts, Messages().size() == 1) << what;
        EXPECT_TRUE(starts || Messages().back().ends_with(L"\n" + grammar)) << what;
    }
}

}  // namespace
