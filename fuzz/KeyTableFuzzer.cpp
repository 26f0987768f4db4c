// libFuzzer target: arbitrary bytes as the key files of the user directory (the first byte picks
// which modes have one, the rest is each file), loaded as the key page and "/KEYLIST" load them,
// the blocks "/KEYLIST" writes turned into their key lists, and the tables saved and loaded again,
// which must give them back unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "bindings/KeyListCsv.h"
#include "bindings/KeyTableFiles.h"
#include "definitions/CommandCatalog.h"
#include "platform/fake/FakePlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    platform::fake::FakePlatform fake;
    const std::wstring userDirectory = L"C:\\Qor\\User\\";
    fake.files().AddDirectory(userDirectory);
    const uint8_t present = data[0];
    const std::vector<uint8_t> file(data + 1, data + size);
    for (int mode = 0; mode < kKeyModeCount; ++mode) {
        // The ninth mode shares the first mode's bit.
        if (present & (1u << (mode % 8))) fake.files().AddFile(KeyFilePath(userDirectory, mode), file);
    }

    KeyTableSet tables;
    LoadKeyTables(userDirectory, tables);
    CommandCatalog catalog;
    for (int mode : {0, 1}) {
        for (int modifier = 0; modifier < kModifierCount; ++modifier) {
            KeyListCsvText(KeyListRows(tables.Block(mode, modifier), catalog, nullptr));
        }
    }
    SaveKeyTables(userDirectory, tables);
    KeyTableSet reloaded;
    LoadKeyTables(userDirectory, reloaded);
    if (!(reloaded == tables)) std::abort();
    return 0;
}
