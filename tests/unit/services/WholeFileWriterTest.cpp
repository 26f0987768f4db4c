// Every writer made to fail halfway: the old file stays whole, no temporary file stays, the same words are told.
#include <gtest/gtest.h>

#include <set>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyListWriter.h"
#include "bindings/KeyTableFiles.h"
#include "definitions/CommandDump.h"
#include "platform/fake/FakePlatform.h"
#include "services/DialogText.h"
#include "services/WholeFileWriter.h"
#include "unit/Utf16.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";
constexpr const wchar_t* kProgram = L"C:\\Qor\\Tools\\Option\\Option.exe";

struct Writer {
    const char* label;
    std::wstring target;  // holds "old" before the writer runs
    void (*write)(FakePlatform&);
    std::vector<ShownMessage> shown = {};  // the same whether the write fails or not
};

const Writer kWriters[] = {
    {"key maps", std::wstring(kUserDir) + L"SerchMode.key",
     [](FakePlatform&) { SaveKeyTables(kUserDir, DefaultKeyTables()); }},
    {"key lists",
     L"C:\\Out\\Command mode.csv",
     [](FakePlatform& fake) {
         fake.prompts().ChooseFolder({true, L"C:\\Out"});
         fake.prompts().Answer(platform::kAnswerYes);
         fake.files().AddFile(L"C:\\Msg.txt", Utf16Bytes(L"63503\tPick a folder\r\n", true));
         MessageCatalog messages;
         messages.SetPath(L"C:\\Msg.txt");
         CommandCatalog catalog;
         KeyListWriter(kUserDir, messages, catalog, nullptr).Run();
     },
     {{L"Do you want to overwrite it?\nC:\\Out\\Command mode.csv", platform::kStyleYesNo}}},
    {"command dump", L"C:\\Qor\\AllCommand.html",
     [](FakePlatform&) {
         SaveCommandDump(CommandDumpPath(L"C:\\Qor\\Tools\\Option\\", CommandDumpForm::Html),
                         L"\uFEFF" + CommandDumpRow(CommandDumpForm::Html, 35900, L"Open", L"Open"));
     }},
    {"dialog text", L"C:\\Qor\\Tools\\Option\\.en-US\\Option\\159.txt",
     [](FakePlatform&) {
         WriteDialogText(LocateDialogText(kProgram, L".en-US", 159), {L"Options", {{1001, L"Static", L"Name", {}}}});
     }},
};

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L'\\'));
}

std::set<std::wstring> Names(FakePlatform& fake, const std::wstring& folder, const wchar_t* pattern = L"*") {
    std::set<std::wstring> names;
    for (const platform::FindData& found : fake.files().FindAll(folder + L"\\" + pattern, platform::FindStyle::Plain))
        names.insert(found.name);
    return names;
}

TEST(WholeFileWriter, AFailureHalfwayLeavesTheOldFileWhole) {
    enum class Failure { None, DiskFullAfter40Bytes, ReplaceRefused, TargetReadOnly };
    for (const Writer& writer : kWriters) {
        for (Failure failure :
             {Failure::None, Failure::DiskFullAfter40Bytes, Failure::ReplaceRefused, Failure::TargetReadOnly}) {
            SCOPED_TRACE(testing::Message() << writer.label << ", failure " << static_cast<int>(failure));
            FakePlatform fake;
            fake.files().AddFile(writer.target, std::string("old"));
            const std::wstring folder = FolderOf(writer.target);
            const std::set<std::wstring> before = Names(fake, folder);
            if (failure == Failure::DiskFullAfter40Bytes) fake.files().FailWritesAfter(40);
            if (failure == Failure::ReplaceRefused) fake.files().FailReplaces(5);
            if (failure == Failure::TargetReadOnly)
                fake.files().SetAttributes(writer.target, platform::kAttributeReadOnly);

            writer.write(fake);

            EXPECT_EQ(writer.shown, fake.prompts().shown());
            EXPECT_TRUE(Names(fake, folder, L"*.tmp").empty());
            if (failure == Failure::None) {
                EXPECT_NE("old", fake.files().FileText(writer.target));
                continue;
            }
            EXPECT_EQ("old", fake.files().FileText(writer.target));
            if (failure != Failure::TargetReadOnly) {
                EXPECT_EQ(before, Names(fake, folder)) << "nothing new appears";
            }
        }
    }
}

}  // namespace
