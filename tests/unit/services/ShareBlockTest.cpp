#include "services/ShareBlock.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// "|" stands for a zero unit, so that a block as the reader leaves it can be written down.
std::vector<uint16_t> Units(std::wstring_view text, size_t count = 0) {
    std::vector<uint16_t> units;
    for (wchar_t c : text) units.push_back(c == L'|' ? 0 : static_cast<uint16_t>(c));
    units.resize(std::max(count, units.size()), 0);
    return units;
}

// Reading the block from the host's mapping, under its mutex, is tried on Windows with the plain
// layouts; here is how the others split. The split leaves the inspection text to the reader.
TEST(ShareBlock, SplitsTabEndedFieldsAndOverwritesEachTabItPasses) {
    // clang-format off
    struct Case { const char* what; std::wstring text; size_t limit; ShareBlock expected; std::wstring after; };
    const Case cases[] = {
        {"both lists, later fields ignored", L"1\t1\tC:\\w\t\ta\tb\tc\t", 100, {L"C:\\w", L"", {L"a"}, {L"b"}, L""},
         L"1|1|C:\\w||a|b|c|"},
        {"an empty block", L"", 100, {}, L""},
        {"counts bigger than the fields", L"5\t7\td\to\ta\tb\t", 100, {L"d", L"o", {L"a", L"b"}, {}, L""},
         L"5|7|d|o|a|b|"},
        {"a negative first count moves the second list's start", L"-1\t3\td\to\ta\tb\t", 100,
         {L"d", L"o", {}, {L"a", L"b"}, L""}, L"-1|3|d|o|a|b|"},
        {"counts are read as _wtoi reads them", L" 1x\t+1\td\to\ta\tb\t", 100, {L"d", L"o", {L"a"}, {L"b"}, L""},
         L" 1x|+1|d|o|a|b|"},
        {"a zero ends the text", L"1\t0\td\to|a\t", 100, {L"d", L"", {}, {}, L""}, L"1|0|d|o|a\t"},
        {"the limit ends the walk", L"1\t0\td\to\tab\tc\t", 10, {L"d", L"o", {}, {}, L""}, L"1|0|d|o|ab\tc\t"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::vector<uint16_t> units = Units(c.text, 24);
        EXPECT_EQ(c.expected, SplitShareBlock(units, c.limit));
        EXPECT_EQ(Units(c.after, 24), units);
    }
}

TEST(ShareBlock, InspectionTextEndsEveryEntryWithATab) {
    ShareBlock block{L"C:\\w", L"-x", {L"a", L"b"}, {L"c"}, L""};
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:C:\\w\nOption:-x\na\tb\t\nc\t", ShareBlockInspection(block));
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:\nOption:\n\n", ShareBlockInspection({}));
    EXPECT_EQ(L"ShareMem_-1_20", ShareBlockName(-1, 20));
}

}  // namespace
