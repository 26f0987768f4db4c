#include "services/StrCmpLogical.h"

#include <array>

namespace crt {

namespace {

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

// The digits at p as the shell reads them: a 64-bit total that wraps, cut to a 32-bit int.
int32_t DigitRunValue(const wchar_t*& p) {
    uint32_t value = 0;
    for (; IsDigit(*p); ++p) value = value * 10 + static_cast<uint32_t>(*p - L'0');
    return static_cast<int32_t>(value);
}

std::array<uint16_t, 65536> ExpandRanks() {
    std::array<uint16_t, 65536> ranks{};
    size_t unit = 0;
    for (size_t i = 0; i < detail::kCollationRunCount; ++i) {
        const detail::CollationRun& run = detail::kCollationRuns[i];
        for (uint32_t k = 0; k < run.count && unit < ranks.size(); ++k)
            ranks[unit++] = static_cast<uint16_t>(run.rank + run.step * k);
    }
    return ranks;
}

}  // namespace

uint16_t CollationRank(wchar_t c) {
    static const std::array<uint16_t, 65536> ranks = ExpandRanks();
    return ranks[static_cast<uint32_t>(c) & 0xFFFF];
}

int StrCmpLogical(const wchar_t* a, const wchar_t* b) {
    if (!a || !b) return 0;
    while (*a) {
        if (!*b) return 1;
        if (IsDigit(*a)) {
            if (!IsDigit(*b)) return -1;
            int32_t left = DigitRunValue(a), right = DigitRunValue(b);
            if (left != right) return left < right ? -1 : 1;
        } else if (IsDigit(*b)) {
            return 1;
        } else {
            uint16_t left = CollationRank(*a++), right = CollationRank(*b++);
            if (left != right) return left < right ? -1 : 1;
        }
    }
    return *b ? -1 : 0;
}

}  // namespace crt
