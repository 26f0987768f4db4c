#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "pages/SortBenchmark.h"

namespace {

using sortbench::MergeSort;
using sortbench::ThresholdSearch;

// A key and the position it started at; the sort compares the key only.
struct Keyed {
    int64_t key, order;
    bool operator==(const Keyed&) const = default;
};
const auto KeyLess = [](const Keyed& x, const Keyed& y) { return x.key < y.key; };

// Few distinct keys, so that runs of equal keys cross every split and merge.
std::vector<Keyed> Shuffled(size_t n, int64_t keys, uint32_t seed) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int64_t> key(0, keys - 1);
    std::vector<Keyed> values(n);
    for (size_t i = 0; i < n; ++i) values[i] = {key(random), static_cast<int64_t>(i)};
    return values;
}

TEST(SortBenchmark, SortsLikeStableSortInBothDirections) {
    const size_t lengths[] = {0,  1,   2,   3,   9,   10,  11,  12,   13,   63,   64,
                              65, 101, 102, 103, 127, 128, 129, 1023, 1024, 1025, 10000};
    const size_t thresholds[] = {0, 1, 10, 100, 20000};
    std::vector<Keyed> scratch;
    for (size_t n : lengths) {
        for (size_t threshold : thresholds) {
            for (int depth : {0, 2}) {  // 2: the halves are sorted in parallel sections
                for (bool descending : {false, true}) {
                    std::vector<Keyed> sorted = Shuffled(n, 1 + static_cast<int64_t>(n) / 4, static_cast<uint32_t>(n));
                    std::vector<Keyed> expected = sorted;
                    std::stable_sort(expected.begin(), expected.end(), [descending](const Keyed& x, const Keyed& y) {
                        return descending ? KeyLess(y, x) : KeyLess(x, y);
                    });
                    MergeSort(std::span<Keyed>(sorted), scratch, threshold, depth, descending, KeyLess);
                    ASSERT_EQ(expected, sorted) << "n " << n << " threshold " << threshold << " depth " << depth
                                                << " descending " << descending;
                }
            }
        }
    }
}

// Ticks for the search: each measurement reads the counter twice and takes the given duration.
sortbench::TickSource Scripted(std::vector<uint64_t> durations, uint64_t origin = 1000) {
    return [durations = std::move(durations), origin, reads = size_t(0)]() mutable {
        const size_t measurement = reads / 2;
        const uint64_t start = origin + measurement * 1000000000ULL;
        const uint64_t duration = measurement < durations.size() ? durations[measurement] : 1000000;
        return reads++ % 2 == 0 ? start : start + duration;
    };
}

// The report as the user reads it: three measurements to a line, only the first hundred shown.
std::wstring Report(const std::vector<int64_t>& times) {
    std::wstring text = L"Results up to 100-line display.\nValue - time\n";
    for (size_t i = 0; i < times.size(); ++i) {
        wchar_t line[32];
        std::swprintf(line, std::size(line), L"%03d - %10lld", static_cast<int>(i), static_cast<long long>(times[i]));
        text += line;
        text += (i + 1) % 3 == 0 ? L"\n" : L" / ";
    }
    return text;
}

// The setting stays as it was when no measurement beats 99,999,999 ticks.
TEST(SortBenchmark, SearchStopsAfterTenMeasurementsWithoutANewBest) {
    std::vector<uint64_t> falling(1000);
    for (size_t t = 0; t < falling.size(); ++t) falling[t] = 5000 - t;
    // shown empty: the first durations as they are
    // clang-format off
    struct Case { const char* name; std::vector<uint64_t> durations; int32_t threshold; size_t lines;
                  std::vector<int64_t> shown; };
    const Case cases[] = {
        {"nothing beats T = 0", {500, 500, 600, 700, 500, 800, 900, 510, 520, 530, 501}, 0, 10, {}},
        {"a best at the tenth try still counts",
         {500, 501, 502, 503, 504, 505, 506, 507, 508, 509, 499, 600, 600, 600, 600, 600, 600, 600, 600, 600, 600},
         10, 20, {}},
        {"a later best restarts the count", {500, 600, 400, 401, 402, 403, 404, 405, 406, 407, 408, 409, 410}, 2, 12, {}},
        {"ticks are 32 bits and printed signed", {3000000000ULL, 99999999, 4294967296ULL + 7}, 2, 12,
         {-1294967296, 99999999, 7, 1000000, 1000000, 1000000, 1000000, 1000000, 1000000, 1000000, 1000000, 1000000}},
        {"a thousand thresholds, the first hundred shown", falling, 999, 100, {}},
        {"nothing under the start, so T = 0 counts as a try", std::vector<uint64_t>(20, 99999999), 37, 9, {}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<int64_t> shown = c.shown;
        if (shown.empty()) shown.assign(c.durations.begin(), c.durations.begin() + c.lines);
        int32_t chgSortAlg = 37;
        const std::wstring report =
            sortbench::SearchSortThreshold(ThresholdSearch{chgSortAlg, Scripted(c.durations), 8});
        EXPECT_EQ(c.threshold, chgSortAlg);
        EXPECT_EQ(Report(shown), report);
    }
    // The lines above, once as literal text: numbers right-aligned in ten places, ticks signed.
    EXPECT_EQ(
        L"Results up to 100-line display.\nValue - time\n000 - -1294967296 / 001 -   99999999 / 002 -          7\n",
        Report({-1294967296, 99999999, 7}));
}

}  // namespace
