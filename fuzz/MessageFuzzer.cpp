// libFuzzer target: arbitrary bytes as the language's message file, read as the program reads it at
// its first lookup, then looked up the ways the program does: single texts and a confirmation.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "services/MessageCatalog.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring path = MessageFilePath(L"C:\\Qor\\command\\Option\\", L".ja-JP");
    fake.files().AddFile(path, std::vector<uint8_t>(data, data + size));

    MessageCatalog messages;
    messages.SetPath(path);
    for (uint16_t id : {0, 1, 100, 62538, 65535}) messages.Get(id);
    messages.Confirm(-1, 62540);
    return 0;
}
