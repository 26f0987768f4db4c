// libFuzzer target: arbitrary bytes as a menu file of the bars, read while the command picker's tree
// is built with bar commands wanted.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "definitions/CommandTree.h"
#include "platform/fake/FakePlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring folder = L"C:\\Qor\\InitTemp\\Menu\\";
    fake.files().AddDirectory(folder);
    fake.files().AddFile(folder + L"_Bar.txt", std::vector<uint8_t>(data, data + size));
    CommandCatalog catalog;
    BuildCommandTree({catalog, nullptr, {L"", L"", L"", L""}, folder}, nullptr);
    return 0;
}
