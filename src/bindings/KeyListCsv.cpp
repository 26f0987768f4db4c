#include "bindings/KeyListCsv.h"

#include <cstdint>

#include "services/Format.h"
#include "services/WholeFileWriter.h"
#include "services/WideStream.h"

std::wstring KeyListCsvText(const std::vector<KeyListRow>& rows) {
    std::wstring text = L"\uFEFF";
    for (const KeyListRow& row : rows) text += L"\"" + row.key + L"\",\"" + row.command + L"\"\r\n";
    return text;
}

std::vector<KeyListRow> KeyListRows(std::span<const uint16_t, kKeyCount> block, const CommandCatalog& catalog,
                                    const platform::ResourceLibrary* library) {
    std::vector<KeyListRow> rows;
    for (int key = 0; key < kKeyCount; ++key) {
        rows.push_back({KeyNameTable[key], catalog.GetCommandString(block[key], library)});
    }
    return rows;
}

bool WriteKeyListCsv(const std::wstring& path, std::span<const uint16_t, kKeyCount> block,
                     const CommandCatalog& catalog, const platform::ResourceLibrary* library) {
    std::vector<uint8_t> bytes;
    AppendUtf16(bytes, KeyListCsvText(KeyListRows(block, catalog, library)));
    return WriteWholeFile(path, bytes);
}

std::wstring PageKeyListName(int mode, int modifier) {
    const std::wstring base = mode == 0 ? L"Command" : mode == 1 ? L"Search" : crt::Format(L"mode%d", mode + 1);
    return base + kKeyListSuffixes[modifier] + L".csv";
}
