#include "platform/fake/CodePage1252.h"

namespace platform::fake {

namespace {

// Bytes 0x80 to 0x9F; the five the code page leaves undefined stand for the control character of
// the same number, as the system reads them.
constexpr wchar_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

wchar_t UnitOfByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : static_cast<wchar_t>(byte);
}

char ByteOfUnit(wchar_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return static_cast<char>(unit);
    for (unsigned i = 0; i < 32; ++i)
        if (kHighControls[i] == unit) return static_cast<char>(0x80 + i);
    return '?';
}

}  // namespace

std::string ToCodePage1252(const std::wstring& text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (wchar_t unit : text) bytes.push_back(ByteOfUnit(unit));
    return bytes;
}

std::wstring FromCodePage1252(const std::string& bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (char byte : bytes) text.push_back(UnitOfByte(static_cast<unsigned char>(byte)));
    return text;
}

}  // namespace platform::fake
