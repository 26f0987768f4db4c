// libFuzzer target: arbitrary bytes as a skin folder's readme, read and decoded as the skin pages show
// it; the system's guess is taken from the first byte, so that every branch of the decoding is reached.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "pages/SkinReadme.h"
#include "platform/fake/FakePlatform.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const uint32_t guesses[] = {0, kCodePageUtf16, kCodePageShiftJis, kCodePageUtf8};
    if (size > 0 && data[0] % 5 != 4) fake.codePages().Guess(guesses[data[0] % 5]);
    if (size > 0 && data[0] & 0x80) fake.codePages().Refuse(kCodePageShiftJis);
    fake.files().AddFile(L"C:\\Qor\\img\\Fuzz\\Readme.txt", std::vector<uint8_t>(data, data + size));
    ReadSkinReadme(L"C:\\Qor\\img\\Fuzz\\");
    DetectCodePage({data, size});
    return 0;
}
