// "run" and "shell" lines: whether the host opens the target as a folder or the target starts as a
// program, with which directory, and what the first target decides for the lines after it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/RunLine.h"
#include "services/CRuntime.h"
#include "services/MessageCatalog.h"
#include "settings/UserDirectories.h"

namespace {

constexpr platform::WindowRef kHost = 0x99;

struct Outcome {
    std::vector<std::pair<uint32_t, std::wstring>> hostTexts;        // code and text
    std::vector<std::pair<std::wstring, std::wstring>> shellStarts;  // file and directory
    std::vector<std::wstring> processStarts;                         // command lines (drops)
    int32_t openModeAfter;
    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& o, std::ostream* os) {
    *os << "host " << o.hostTexts.size() << ", shell " << o.shellStarts.size() << ", processes "
        << o.processStarts.size() << ", openmode " << o.openModeAfter;
}

TEST(RunLine, TheOpenModeDecidesBetweenHostAndProgram) {
    struct Case {
        const char* what;
        RunWord word;
        std::wstring value;
        RunOptions options;
        SelectionList selection;
        Outcome expected;
    };
    RunOptions decide;  // openmode 0, as a script starts
    RunOptions start;
    start.openMode = 1;
    RunOptions ownDirectory = start;
    ownDirectory.bootDir = L"1";
    RunOptions toHost = start;
    toHost.openMode = 2;
    RunOptions ignored = start;
    ignored.openMode = 5;
    RunOptions dropping = start;
    dropping.sendInfoMode = 1;
    dropping.runWait = 40;
    // clang-format off
    const Case cases[] = {
        {"a missing path counts as a directory", RunWord::Run, L" C:\\Gone ", decide, {},
         {{{200, L"C:\\Gone"}}, {}, {}, 3}},
        {"a directory", RunWord::Run, L"C:\\Data", decide, {}, {{{200, L"C:\\Data"}}, {}, {}, 3}},
        {"a file starts, and decides so for later lines", RunWord::Run, L"C:\\Tools\\view.exe", decide, {},
         {{}, {{L"C:\\Tools\\view.exe", L"C:\\Now"}}, {}, 1}},
        {"a shell folder of the name space", RunWord::Run, L"::{FOLDER}", decide, {},
         {{{200, L"::{FOLDER}"}}, {}, {}, 3}},
        {"a name-space item that is no folder", RunWord::Run, L"::{ITEM}", decide, {},
         {{}, {{L"::{ITEM}", L"C:\\Now"}}, {}, 1}},
        {"bootdir 1 with a trailing separator: the parent", RunWord::Run, L"C:\\Tools\\App\\", ownDirectory, {},
         {{}, {{L"C:\\Tools\\App\\", L"C:\\Tools\\"}}, {}, 1}},
        {"to the host: a file's directory without its separator", RunWord::Run, L"C:\\Tools\\view.exe", toHost, {},
         {{{100, L"C:\\Tools"}}, {}, {}, 2}},
        {"ignored modes", RunWord::Run, L"C:\\Tools\\view.exe", ignored, {}, {{}, {}, {}, 5}},
        {"run does not see variables", RunWord::Run, L"$tool", start, {}, {{}, {{L"$tool", L"C:\\Now"}}, {}, 1}},
        {"shell does", RunWord::Shell, L"$tool", start, {}, {{}, {{L"C:\\Tools\\view.exe", L"C:\\Now"}}, {}, 1}},
        {"the selection as a drop", RunWord::Run, L"C:\\Tools\\view.exe", dropping, {L"C:\\Data\\a.txt"},
         {{}, {}, {L"C:\\Tools\\view.exe"}, 1}},
        {"nothing to run", RunWord::Run, L"   ", decide, {}, {{}, {}, {}, 0}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        platform::fake::FakePlatform fake;
        fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
        fake.files().AddFile(L"C:\\Tools\\view.exe", std::string_view());
        fake.files().AddDirectory(L"C:\\Data");
        fake.files().AddShellFolder(L"::{FOLDER}");
        UserDirectories directories;
        MessageCatalog messages;
        RunLineContext context{directories, messages, c.selection, L"C:\\Now", kHost, [](const std::wstring& text) {
                                   std::wstring expanded = text;
                                   crt::Replace(expanded, L"$tool", L"C:\\Tools\\view.exe");
                                   return expanded;
                               }};
        RunOptions options = c.options;
        RunTargetLine(c.word, c.value, options, context);
        Outcome outcome{{}, {}, {}, options.openMode};
        for (const auto& copy : fake.windows().copies()) {
            EXPECT_EQ(kHost, copy.window);
            EXPECT_EQ(copy.text.size() * 8 + 8, copy.cbData);
            outcome.hostTexts.emplace_back(copy.code, copy.text);
        }
        for (const auto& request : fake.processes().shellRequests()) {
            outcome.shellStarts.emplace_back(request.file, request.directory);
        }
        for (const auto& started : fake.processes().starts()) outcome.processStarts.push_back(started.commandLine);
        EXPECT_EQ(c.expected, outcome);
    }
}

}  // namespace
