#include <gtest/gtest.h>

#include "bindings/KeyListCsv.h"
#include "bindings/KeyListWriter.h"
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
        std::vector<std::wstring> lines(1);
        for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
            lines.back().push_back(static_cast<wchar_t>(uint8_t(bytes[i]) | uint8_t(bytes[i + 1]) << 8));
            if (lines.back().ends_with(L"\r\n")) lines.emplace_back();
        }
        if (lines.back().empty()) lines.pop_back();
        return lines;
    }

    FakePlatform fake;
    MessageCatalog messages;
    CommandCatalog catalog;
    std::unique_ptr<platform::ResourceLibrary> library;
};

// The rest of the run is end-to-end: here commands without a name or with quotes, and a user who picks
// a virtual folder until he gives up.
TEST_F(KeyListWriterTest, CommandsWithoutANameAreListedByTheirNumberOrAsMissing) {
    fake.prompts().ChooseFolder({true, L"C:\\Out"});
    Run();
    EXPECT_EQ((std::vector<FolderBrowse>{{kTitle, L""}}), fake.prompts().browsed());
    EXPECT_TRUE(fake.prompts().shown().empty());
    const std::vector<std::wstring> command = Lines(L"C:\\Out\\Command mode.csv");
    ASSERT_EQ(76u, command.size());
    EXPECT_EQ((std::vector<std::wstring>{L"\uFEFF\"A\",\"Edit \"quoted\" in Notepad\"\r\n", L"\"O\",\"---\"\r\n",
                                         L"\"@\",\"External 42150\"\r\n", L"\"\\\",\"Cannot get command string.\"\r\n",
                                         L"\"Ent\",\"Open\"\r\n", L"\uFEFF\"A\",\"Select all\"\r\n"}),
              (std::vector<std::wstring>{command[0], command[14], command[66], command[68], command[75],
                                         Lines(L"C:\\Out\\Command mode Ctrl.csv")[0]}));

    fake.prompts().Clear();
    for (FolderChoice choice : {FolderChoice{true, L""}, FolderChoice{true, L""}, FolderChoice{false, L""}})
        fake.prompts().ChooseFolder(choice);
    Run();
    const ShownMessage virtualFolder{L"It can not be output to this directory.", 0};
    EXPECT_EQ((std::vector<ShownMessage>{virtualFolder, virtualFolder}), fake.prompts().shown());
    EXPECT_EQ(3u, fake.prompts().browsed().size());
}

TEST_F(KeyListWriterTest, AListThatCannotBeOpenedIsPassedSilently) {
    const std::wstring folder = L"C:\\Out\\Command mode.csv";
    fake.files().AddDirectory(folder);
    fake.prompts().ChooseFolder({true, L"C:\\Out"});
    fake.prompts().Answer(platform::kAnswerYes);
    Run();
    EXPECT_EQ((std::vector<ShownMessage>{{L"Do you want to overwrite it?\n" + folder, 4}}), fake.prompts().shown());
    EXPECT_EQ(76u, Lines(L"C:\\Out\\Search mode Ctrl+Shift.csv").size());
}

}  // namespace
