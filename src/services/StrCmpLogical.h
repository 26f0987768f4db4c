// The shell's "logical" comparison of names, as the reference runtime (Wine) does it: runs of
// ASCII digits compare by value, everything else one unit at a time by the case-insensitive
// collation of single characters of the user's locale.
#pragma once

#include <cstddef>
#include <cstdint>

namespace crt {

// -1, 0 or 1. Null on either side gives 0. A digit run's value is taken modulo 2^32 as a signed
// 32-bit number, so "4294967297" equals "1" and "3000000000" sorts before "1"; leading zeros
// do not count ("a007" equals "a7"). A digit sorts before any other character.
int StrCmpLogical(const wchar_t* a, const wchar_t* b);

// Position of one UTF-16 unit in the single-character collation (equal ranks compare equal).
uint16_t CollationRank(wchar_t c);

namespace detail {
struct CollationRun {
    uint16_t count;
    uint16_t rank;
    uint8_t step;
};
extern const CollationRun kCollationRuns[];
extern const size_t kCollationRunCount;
// A unit that collates as two letters, in ascending order of unit.
struct CollationExpansion {
    uint16_t unit;
    char first;
    char second;
};
extern const CollationExpansion kCollationExpansions[];
extern const size_t kCollationExpansionCount;
}  // namespace detail

}  // namespace crt
