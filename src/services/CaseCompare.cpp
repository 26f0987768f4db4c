#include "services/CaseCompare.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "services/StrCmpLogical.h"

namespace crt {

namespace {

// Every unit that weighs nothing in a string collates at rank 0, with nothing else but lone surrogates.
constexpr uint16_t kWeightless = 0;

wchar_t LowerAscii(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c;
}

const detail::CollationExpansion* ExpansionOf(wchar_t c) {
    const detail::CollationExpansion* first = detail::kCollationExpansions;
    const detail::CollationExpansion* last = first + detail::kCollationExpansionCount;
    const auto unit = static_cast<uint16_t>(c);
    const auto* found =
        std::lower_bound(first, last, unit, [](const detail::CollationExpansion& e, uint16_t u) { return e.unit < u; });
    return found != last && found->unit == unit ? found : nullptr;
}

std::vector<uint16_t> CollationKey(std::wstring_view text) {
    std::vector<uint16_t> key;
    key.reserve(text.size());
    for (wchar_t c : text) {
        if (const detail::CollationExpansion* expansion = ExpansionOf(c)) {
            key.push_back(CollationRank(static_cast<wchar_t>(expansion->first)));
            key.push_back(CollationRank(static_cast<wchar_t>(expansion->second)));
        } else if (const uint16_t rank = CollationRank(c); rank != kWeightless) {
            key.push_back(rank);
        }
    }
    return key;
}

}  // namespace

bool EqualNoCase(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
    }
    return true;
}

bool EqualCollatingNoCase(std::wstring_view a, std::wstring_view b) {
    return CollationKey(a) == CollationKey(b);
}

}  // namespace crt
