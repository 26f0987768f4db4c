#include "services/ShareBlock.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/fake/FakePlatform.h"

namespace {

// "|" stands for a zero unit, so that a block as the reader leaves it can be written down.
std::vector<uint16_t> Units(std::wstring_view text, size_t count = 0) {
    std::vector<uint16_t> units;
    for (wchar_t c : text) units.push_back(c == L'|' ? 0 : static_cast<uint16_t>(c));
    units.resize(std::max(count, units.size()), 0);
    return units;
}

// The plain layouts are read from a real mapping on Windows; here the others.
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

// The view is let go before the host's mutex; a mapping the system refuses is told and skipped.
TEST(ShareBlock, ReadsUnderTheHostsMutexAndTellsAFailedMapping) {
    platform::fake::FakePlatform fake;
    fake.sharedMemory().AddBlock(L"ShareMem_7_8", Units(L"1\t0\tC:\\w\t\ta\t", 32));
    EXPECT_EQ(std::vector<std::wstring>{L"a"}, ReadShareBlock(7, 8, 64).firstList);
    EXPECT_EQ(Units(L"1|0|C:\\w||a|", 32), *fake.sharedMemory().Block(L"ShareMem_7_8"));
    fake.sharedMemory().FailMapping(87);
    fake.processes().SetErrorText(87, L"The parameter is incorrect.\r\n");
    EXPECT_EQ(ShareBlock{}, ReadShareBlock(3, 4, 0));
    EXPECT_EQ((std::vector<std::wstring>{L"map ShareMem_7_8 64", L"mutex ShareMem_7_8_Mutex",
                                         L"lock ShareMem_7_8_Mutex", L"unlock ShareMem_7_8_Mutex",
                                         L"unmap ShareMem_7_8", L"close ShareMem_7_8_Mutex", L"map ShareMem_3_4 0"}),
              fake.sharedMemory().events());
    EXPECT_EQ((std::vector<platform::fake::ShownMessage>{{L"The parameter is incorrect.\r\n", 0}}),
              fake.prompts().shown());
}

}  // namespace
