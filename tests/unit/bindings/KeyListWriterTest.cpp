#include <gtest/gtest.h>

#include <map>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyListCsv.h"
#include "bindings/KeyListWriter.h"
#include "bindings/KeyTableFiles.h"
#include "definitions/CommandListFile.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::FolderChoice;
using platform::fake::FakePlatform;
using platform::fake::FolderBrowse;
using platform::fake::LibraryContent;
using platform::fake::ShownMessage;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";
constexpr const wchar_t* kLibrary = L"C:\\Qor\\Lang\\Qor.en-US.dll";
constexpr const wchar_t* kMessages = L"C:\\Qor\\Lang\\Msg.en-US.txt";
constexpr const wchar_t* kTitle = L"Choose the folder to write to";

const wchar_t* const kListNames[] = {
    L"Command mode.csv", L"Command mode Shift.csv", L"Command mode Ctrl.csv", L"Command mode Ctrl+Shift.csv",
    L"Search mode.csv",  L"Search mode Shift.csv",  L"Search mode Ctrl.csv",  L"Search mode Ctrl+Shift.csv",
};

std::string Utf16Text(std::wstring_view text) {
    std::vector<uint8_t> bytes = Utf16Bytes(text);
    return std::string(bytes.begin(), bytes.end());
}

class KeyListWriterTest : public testing::Test {
protected:
    KeyListWriterTest() {
        fake.files().AddDirectory(kUserDir);
        fake.files().AddDirectory(L"C:\\Out");
        fake.files().AddFile(kMessages, Utf16Bytes(L"63503\tChoose the folder to write to\r\n", true));
        messages.SetPath(kMessages);
        fake.system().AddLibrary(kLibrary, LibraryContent{{{35900, L"Open\nOpen the item"},
                                                           {57642, L"Select all\nSelect every item"},
                                                           {50555, L"External %d"}},
                                                          {}});
        library = fake.system().LoadDataLibrary(kLibrary);
        fake.files().AddFile(std::wstring(kUserDir) + L"ExternalDefCommand.txt",
                             Utf16Bytes(L"42004\tS\tNF-\tnotepad.exe\tEdit \"quoted\" in Notepad\r\n", true));
        catalog.LoadCommandLists(kUserDir);
        fake.prompts().Clear();
    }

    void Run() {
        KeyListWriter writer(kUserDir, messages, catalog, library.get());
        writer.Run();
    }

    // The lines of a written list, byte order mark and line ends included.
    std::vector<std::wstring> Lines(const std::wstring& path) {
        const std::string bytes = fake.files().FileText(path);
        std::wstring text;
        for (size_t i = 0; i + 1 < bytes.size(); i += 2)
            text.push_back(static_cast<wchar_t>(uint8_t(bytes[i]) | uint8_t(bytes[i + 1]) << 8));
        std::vector<std::wstring> lines;
        for (size_t start = 0, end; start < text.size(); start = end) {
            end = text.find(L"\r\n", start);
            end = end == std::wstring::npos ? text.size() : end + 2;
            lines.push_back(text.substr(start, end - start));
        }
        return lines;
    }

    FakePlatform fake;
    MessageCatalog messages;
    CommandCatalog catalog;
    std::unique_ptr<platform::ResourceLibrary> library;
};

TEST_F(KeyListWriterTest, WithoutKeyFilesTheDefaultsOfTheFirstTwoModesAreListed) {
    fake.prompts().ChooseFolder({true, L"C:\\Out"});
    Run();
    EXPECT_EQ((std::vector<FolderBrowse>{{kTitle, L""}}), fake.prompts().browsed());
    EXPECT_TRUE(fake.prompts().shown().empty());
    for (const wchar_t* name : kListNames) {
        std::vector<std::wstring> lines = Lines(std::wstring(L"C:\\Out\\") + name);
        ASSERT_EQ(76u, lines.size()) << testing::PrintToString(std::wstring(name));
        EXPECT_TRUE(lines[0].starts_with(L"\uFEFF\"A\",\"")) << testing::PrintToString(lines[0]);
        EXPECT_TRUE(lines[54].starts_with(L"\"F9\",")) << testing::PrintToString(lines[54]);
        EXPECT_TRUE(lines[55].starts_with(L"\"F11\",")) << testing::PrintToString(lines[55]);
    }
    std::vector<std::wstring> command = Lines(L"C:\\Out\\Command mode.csv");
    EXPECT_EQ(L"\uFEFF\"A\",\"Edit \"quoted\" in Notepad\"\r\n", command[0]);
    EXPECT_EQ(L"\"O\",\"---\"\r\n", command[14]);
    EXPECT_EQ(L"\"@\",\"External 42150\"\r\n", command[66]);
    EXPECT_EQ(L"\"\\\",\"Cannot get command string.\"\r\n", command[68]);
    EXPECT_EQ(L"\"Ent\",\"Open\"\r\n", command[75]);
    EXPECT_EQ(L"\uFEFF\"A\",\"Select all\"\r\n", Lines(L"C:\\Out\\Command mode Ctrl.csv")[0]);
    EXPECT_EQ(L"\uFEFF\"A\",\"---\"\r\n", Lines(L"C:\\Out\\Search mode.csv")[0]);
    // Modes 2 to 9 are never listed.
    EXPECT_EQ(8u, fake.files().FindAll(L"C:\\Out\\*.csv", platform::FindStyle::Plain).size());
}

TEST_F(KeyListWriterTest, SavedKeyFilesAreWhatIsListed) {
    KeyTableSet saved = DefaultKeyTables();
    saved.Word(1, kModifierShift, KeyIndex(L"A")) = 35900;
    saved.Word(0, kModifierNone, KeyIndex(L"A")) = 0;
    SaveKeyTables(kUserDir, saved);
    fake.prompts().ChooseFolder({true, L"C:\\"});
    Run();
    EXPECT_EQ(L"\uFEFF\"A\",\"---\"\r\n", Lines(L"C:\\Command mode.csv")[0]);
    EXPECT_EQ(L"\uFEFF\"A\",\"Open\"\r\n", Lines(L"C:\\Search mode Shift.csv")[0]);
}

TEST_F(KeyListWriterTest, FolderChoices) {
    struct Case {
        const char* what;
        std::vector<FolderChoice> choices;
        std::vector<ShownMessage> shown;
        size_t browsed;
        bool written;
    };
    const ShownMessage virtualFolder{L"It can not be output to this directory.", 0};
    // clang-format off
    const Case cases[] = {
        {"cancelled", {{false, L""}}, {}, 1, false},
        {"a virtual folder, then a real one", {{true, L""}, {true, L"C:\\Out\\"}}, {virtualFolder}, 2, true},
        {"virtual twice, then cancelled", {{true, L""}, {true, L""}, {false, L""}}, {virtualFolder, virtualFolder}, 3,
         false},
    };
    // clang-format on
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const std::wstring folder = L"C:\\Case" + std::to_wstring(++number);
        fake.files().AddDirectory(folder);
        fake.prompts().Clear();
        for (FolderChoice choice : c.choices) {
            if (!choice.path.empty()) choice.path = folder;
            fake.prompts().ChooseFolder(choice);
        }
        Run();
        EXPECT_EQ(c.shown, fake.prompts().shown());
        EXPECT_EQ(c.browsed, fake.prompts().browsed().size());
        EXPECT_EQ(c.written ? 8u : 0u, fake.files().FindAll(folder + L"\\*.csv", platform::FindStyle::Plain).size());
    }
}

// A file that cannot be opened, here a folder by its name, is passed silently.
TEST_F(KeyListWriterTest, EachExistingFileIsAskedForAndNoSkipsOnlyThatOne) {
    const std::wstring folder = L"C:\\Out\\Command mode.csv";
    const std::wstring first = L"C:\\Out\\Command mode Shift.csv";
    const std::wstring second = L"C:\\Out\\Search mode Ctrl+Shift.csv";
    fake.files().AddDirectory(folder);
    fake.files().AddFile(first, std::string("old"));
    fake.files().AddFile(second, std::string("old"));
    fake.prompts().ChooseFolder({true, L"C:\\Out"});
    for (int answer : {platform::kAnswerYes, platform::kAnswerNo, platform::kAnswerYes}) fake.prompts().Answer(answer);
    Run();
    EXPECT_EQ((std::vector<ShownMessage>{{L"Do you want to overwrite it?\n" + folder, 4},
                                         {L"Do you want to overwrite it?\n" + first, 4},
                                         {L"Do you want to overwrite it?\n" + second, 4}}),
              fake.prompts().shown());
    EXPECT_EQ("old", fake.files().FileText(first));
    const std::string firstLine = Utf16Text(L"\uFEFF\"A\",\"---\"\r\n");
    EXPECT_EQ(firstLine, fake.files().FileText(second).substr(0, firstLine.size()));
    EXPECT_EQ(76u, Lines(L"C:\\Out\\Search mode.csv").size());
    EXPECT_EQ(8u, fake.files().FindAll(L"C:\\Out\\*.csv", platform::FindStyle::Plain).size());
}

TEST(KeyListCsv, TextForm) {
    EXPECT_EQ(L"\uFEFF\"A\",\"Copy\"\r\n\"\\\",\"Say \"hi\"\"\r\n",
              KeyListCsvText({{L"A", L"Copy"}, {L"\\", L"Say \"hi\""}}));
    EXPECT_EQ(L"\uFEFF", KeyListCsvText({}));
}

}  // namespace
