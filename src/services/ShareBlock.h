// The block of shared memory a host fills before it starts the tool: its current directory, an
// option text and two lists, as tab-ended fields of UTF-16 text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

struct ShareBlock {
    std::wstring currentDir;
    std::wstring option;
    std::vector<std::wstring> firstList;
    std::vector<std::wstring> secondList;
    // What was read, put together for a look at it.
    std::wstring inspection;
    bool operator==(const ShareBlock&) const = default;
};

// Splits the text in place: each tab that ends a field is overwritten with a zero as the walk
// passes it, so the block is changed by reading. The walk stops at a zero, at limitChars and at
// the end of units. Fields 0 and 1 count the two lists; a field no tab ends is not read.
ShareBlock SplitShareBlock(std::span<uint16_t> units, size_t limitChars);

// "ShareMemMap", the directory and the option on lines of their own, then each entry of the first
// list with a tab behind it, a line break, and each entry of the second list with a tab behind it.
std::wstring ShareBlockInspection(const ShareBlock& block);

// "ShareMem_<first>_<second>"; its mutex has "_Mutex" behind that.
std::wstring ShareBlockName(int32_t first, int32_t second);

// Opens the named block (a fresh, empty one when the host made none), reads it while holding its
// mutex and lets go of everything. A block that cannot be mapped is told to the user with the
// system's text and reads as empty. The size is in bytes, yet the walk takes it as a count of
// characters: the zero that ends the text is what stops it in practice.
ShareBlock ReadShareBlock(int32_t first, int32_t second, int32_t sizeBytes);
