// libFuzzer target: arbitrary bytes as the file handed over with "/A", whose content decides which
// editor opens it.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "app/SniffDefinitionFile.h"
#include "platform/fake/FakePlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring path = L"C:\\Qor\\User\\Script\\run.txt";
    fake.files().AddFile(path, std::vector<uint8_t>(data, data + size));
    SniffDefinitionFile(path);
    return 0;
}
