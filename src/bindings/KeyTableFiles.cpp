#include "bindings/KeyTableFiles.h"

#include <cstdint>

#include "bindings/DefaultKeyTables.h"
#include "platform/Platform.h"
#include "services/Format.h"
#include "services/LongPath.h"
#include "services/WholeFileWriter.h"

namespace {

using Bytes = std::array<uint8_t, kKeyMapTableBytes>;

Bytes ToBytes(const KeyMapTable& table) {
    Bytes bytes;
    for (size_t i = 0; i < table.size(); ++i) {
        bytes[2 * i] = static_cast<uint8_t>(table[i] & 0xFF);
        bytes[2 * i + 1] = static_cast<uint8_t>(table[i] >> 8);
    }
    return bytes;
}

KeyMapTable FromBytes(const Bytes& bytes) {
    KeyMapTable table;
    for (size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<uint16_t>(bytes[2 * i] | (bytes[2 * i + 1] << 8));
    }
    return table;
}

}  // namespace

std::wstring KeyFilePath(const std::wstring& userDirectory, int mode) {
    switch (mode) {
        case 0:
            return userDirectory + L"CommandMode.key";
        case 1:
            return userDirectory + L"SerchMode.key";
        default:
            return crt::Format(L"%sMode%d.key", userDirectory, mode + 1);
    }
}

void LoadKeyTables(const std::wstring& userDirectory, KeyTableSet& set) {
    for (int mode = 0; mode < kKeyModeCount; ++mode) {
        // Other readers share the file; writers are kept out while it is open.
        auto file = platform::Current().files.Open(ToLongPathForm(KeyFilePath(userDirectory, mode)),
                                                   platform::FileAccess::Read, true);
        if (!file) {
            set.modes[mode] = DefaultKeyTables().modes[mode];
            continue;
        }
        // Whatever the file holds lands over the table's bytes from the start.
        Bytes bytes = ToBytes(set.modes[mode]);
        size_t filled = 0;
        while (filled < bytes.size()) {
            size_t read = file->Read(bytes.data() + filled, bytes.size() - filled);
            if (read == 0) break;
            filled += read;
        }
        set.modes[mode] = FromBytes(bytes);
    }
}

void SaveKeyTables(const std::wstring& userDirectory, const KeyTableSet& set) {
    for (int mode = 0; mode < kKeyModeCount; ++mode) {
        WriteWholeFile(KeyFilePath(userDirectory, mode), ToBytes(set.modes[mode]));
    }
}
