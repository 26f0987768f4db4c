// libFuzzer target: arbitrary bytes as each of the user's six command lists, read into the command
// catalogue as start-up reads them, then every name looked up as the dialogs and key lists do; and
// the same bytes opened in the command definition editor, each row shown, a row added, checked and
// written as OK would.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "definitions/CommandCatalog.h"
#include "definitions/CommandListEditing.h"
#include "definitions/CommandListFile.h"
#include "platform/fake/FakePlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring userDirectory = L"C:\\Qor\\User\\";
    for (const wchar_t* name : kCommandListFiles) {
        fake.files().AddFile(userDirectory + name, std::vector<uint8_t>(data, data + size));
    }

    CommandCatalog catalog;
    catalog.LoadCommandLists(userDirectory);
    for (const auto& [id, name] : catalog.ListedCommands(0, 65535)) catalog.GetCommandString(id, nullptr);
    for (uint16_t id : {kNoCommand, kFirstExternalCommand, kLastExternalCommand, uint16_t{33005}}) {
        catalog.GetCommandString(id, nullptr);
    }
    catalog.ListedCommands(kFirstExternalCommand, kLastExternalCommand);

    const std::wstring list = userDirectory + L"ScriptCommand.txt";
    CommandListDocument document(CommandListRange(list));
    document.Load(list);
    for (int row = 0; row < document.Count(); ++row) {
        const CommandDetails details = ReadCommandDetails(document.rows()[static_cast<size_t>(row)]);
        EnabledDetails(details);
        document.WriteDetails(row, details);
    }
    document.Add();
    document.FirstError();
    document.Save(list);
    return 0;
}
