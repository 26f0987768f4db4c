#include "bindings/KeyListWriter.h"

#include "bindings/KeyListCsv.h"
#include "bindings/KeyTableFiles.h"
#include "platform/Platform.h"
#include "services/FileTests.h"
#include "services/MessageIds.h"
#include "services/PathHelpers.h"

namespace {

// Only the first two modes are listed.
constexpr const wchar_t* kBaseNames[] = {L"Command mode", L"Search mode"};

}  // namespace

void KeyListWriter::Run() {
    KeyTableSet tables;
    LoadKeyTables(userDirectory_, tables);
    std::wstring folder = ChooseFolder();
    if (folder.empty()) return;
    platform::Prompts& prompts = platform::Current().prompts;
    for (int mode = 0; mode < static_cast<int>(std::size(kBaseNames)); ++mode) {
        for (int modifier = 0; modifier < kModifierCount; ++modifier) {
            std::wstring path = AddSeparator(folder) + kBaseNames[mode] + kKeyListSuffixes[modifier] + L".csv";
            if (FileExists(path) &&
                prompts.ShowMessage(kOverwriteQuestion + path, platform::kStyleYesNo) == platform::kAnswerNo) {
                continue;
            }
            WriteKeyListCsv(path, tables.Block(mode, modifier), catalog_, library_);
        }
    }
}

std::wstring KeyListWriter::ChooseFolder() {
    platform::Prompts& prompts = platform::Current().prompts;
    for (;;) {
        platform::FolderChoice choice = prompts.BrowseForFolder(messages_.Get(kMsgFolderBrowserTitle), L"");
        if (!choice.confirmed) return L"";
        if (!choice.path.empty()) return choice.path;
        prompts.ShowMessage(kVirtualFolderText, platform::kStyleOk);
    }
}
