#include "platform/fake/CaseFold.h"

namespace platform::fake {

namespace {

// Latin Extended-A pairs capital and small letters as even/odd units, except in the runs
// U+0139..U+0148 and U+0179..U+017E, where the capital is odd.
wchar_t UpperLatinExtendedA(wchar_t unit) {
    if (unit == 0x131) return L'I';  // dotless i
    if (unit == 0x138 || unit == 0x149) return unit;
    if (unit == 0x17F) return L'S';  // long s
    bool oddCapitals = (unit >= 0x139 && unit <= 0x148) || (unit >= 0x179 && unit <= 0x17E);
    if (oddCapitals) return (unit % 2 == 0) ? unit - 1 : unit;
    return (unit % 2 == 1) ? unit - 1 : unit;
}

}  // namespace

wchar_t UpperCase(wchar_t unit) {
    if (unit >= L'a' && unit <= L'z') return unit - 0x20;
    if (unit < 0xE0) return unit;
    if (unit <= 0xFE) return unit == 0xF7 ? unit : unit - 0x20;
    if (unit == 0xFF) return 0x178;
    if (unit >= 0x100 && unit <= 0x17F) return UpperLatinExtendedA(unit);
    if (unit == 0x3C2) return 0x3A3;  // final sigma
    if (unit >= 0x3B1 && unit <= 0x3CB) return unit - 0x20;
    if (unit >= 0x430 && unit <= 0x44F) return unit - 0x20;
    if (unit >= 0x450 && unit <= 0x45F) return unit - 0x50;
    if (unit >= 0xFF41 && unit <= 0xFF5A) return unit - 0x20;
    return unit;
}

std::wstring UpperCase(std::wstring_view text) {
    std::wstring upper(text);
    for (wchar_t& unit : upper) unit = UpperCase(unit);
    return upper;
}

int CompareNoCase(std::wstring_view a, std::wstring_view b) {
    size_t common = a.size() < b.size() ? a.size() : b.size();
    for (size_t i = 0; i < common; ++i) {
        wchar_t x = UpperCase(a[i]);
        wchar_t y = UpperCase(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool EqualNoCase(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && CompareNoCase(a, b) == 0;
}

}  // namespace platform::fake
