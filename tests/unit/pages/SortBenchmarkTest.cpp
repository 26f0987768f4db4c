#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "pages/SortBenchmark.h"
#include "platform/fake/FakePlatform.h"

namespace {

using sortbench::MergeSort;
using sortbench::ThresholdSearch;

// A key and the position it started at; only the key is compared.
struct Keyed {
    int64_t key;
    int64_t order;
    bool operator==(const Keyed&) const = default;
};
struct KeyLess {
    bool operator()(const Keyed& x, const Keyed& y) const { return x.key < y.key; }
};
struct KeyGreater {
    bool operator()(const Keyed& x, const Keyed& y) const { return x.key > y.key; }
};

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
            for (int depth : {0, 2}) {
                for (bool descending : {false, true}) {
                    std::vector<Keyed> sorted = Shuffled(n, 1 + static_cast<int64_t>(n) / 4, static_cast<uint32_t>(n));
                    std::vector<Keyed> expected = sorted;
                    if (descending)
                        std::stable_sort(expected.begin(), expected.end(), KeyGreater());
                    else
                        std::stable_sort(expected.begin(), expected.end(), KeyLess());
                    MergeSort(std::span<Keyed>(sorted), scratch, threshold, depth, descending, KeyLess());
                    ASSERT_EQ(expected, sorted) << "n " << n << " threshold " << threshold << " depth " << depth
                                                << " descending " << descending;
                }
            }
        }
    }
}

TEST(SortBenchmark, SortsPresortedAndReversedRuns) {
    // The benchmark sorts rising integers into falling ones and back.
    std::vector<int64_t> scratch;
    for (size_t n : {2u, 100u, 4097u}) {
        for (size_t threshold : {0u, 10u, 999u}) {
            std::vector<int64_t> values(n);
            for (size_t i = 0; i < n; ++i) values[i] = static_cast<int64_t>(i);
            std::vector<int64_t> falling(values.rbegin(), values.rend());
            std::vector<int64_t> rising = values;
            MergeSort(std::span<int64_t>(values), scratch, threshold, 1, true, std::less<int64_t>());
            EXPECT_EQ(falling, values) << n << " " << threshold;
            MergeSort(std::span<int64_t>(values), scratch, threshold, 1, false, std::less<int64_t>());
            EXPECT_EQ(rising, values) << n << " " << threshold;
        }
    }
}

TEST(SortBenchmark, EachRunFlipsTheDirectionStartingAscending) {
    sortbench::ListSort sort;
    std::vector<int64_t> values = {3, -1, 2, 9, 0};
    sort.Run(values, 0);
    EXPECT_EQ((std::vector<int64_t>{-1, 0, 2, 3, 9}), values);
    sort.Run(values, 0);
    EXPECT_EQ((std::vector<int64_t>{9, 3, 2, 0, -1}), values);
    sort.Run(values, 10);
    EXPECT_EQ((std::vector<int64_t>{-1, 0, 2, 3, 9}), values);
}

TEST(SortBenchmark, DepthIsTheFloorOfLog2OfTheThreads) {
    const std::pair<int, int> cases[] = {{1, 0}, {2, 1}, {3, 1}, {4, 2}, {7, 2}, {8, 3}, {64, 6}};
    for (auto [threads, depth] : cases) EXPECT_EQ(depth, sortbench::SortDepth(threads)) << threads;
}

TEST(SortBenchmark, ParallelSectionsBeginBelowDepthTwo) {
    // Depth 1, what two threads give, still sorts in sequence; each further level nests one region.
    const std::pair<int, int> cases[] = {{0, 0}, {1, 0}, {2, 1}, {3, 2}};
    for (auto [depth, levels] : cases) {
        int deepest = 0;
        auto less = [&deepest](int64_t x, int64_t y) {
#pragma omp critical
            deepest = std::max(deepest, omp_get_level());
            return x < y;
        };
        std::vector<int64_t> values = {5, 1, 4, 2, 8, 7, 3, 6, 0, 9, 11, 10};
        std::vector<int64_t> scratch;
        MergeSort(std::span<int64_t>(values), scratch, 0, depth, false, less);
        EXPECT_EQ(levels, deepest) << depth;
        EXPECT_TRUE(std::is_sorted(values.begin(), values.end())) << depth;
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

std::wstring Report(std::initializer_list<std::wstring> lines) {
    std::wstring text = L"Results up to 100-line display.\nValue - time\n";
    int count = 0;
    for (const auto& line : lines) text += line + (++count % 3 == 0 ? L"\n" : L" / ");
    return text;
}

// The lines of a report, less the header's "Value - time".
int Measurements(const std::wstring& report) {
    int count = -1;
    for (size_t at = report.find(L" - "); at != std::wstring::npos; at = report.find(L" - ", at + 1)) ++count;
    return count;
}

TEST(SortBenchmark, SearchStopsAfterTenMeasurementsWithoutANewBest) {
    struct Case {
        const char* name;
        std::vector<uint64_t> durations;
        int32_t threshold;
        std::wstring report;
    } cases[] = {
        {"nothing beats T = 0",
         {500, 500, 600, 700, 500, 800, 900, 510, 520, 530, 501},
         0,
         Report({L"000 -        500", L"001 -        500", L"002 -        600", L"003 -        700",
                 L"004 -        500", L"005 -        800", L"006 -        900", L"007 -        510",
                 L"008 -        520", L"009 -        530"})},
        {"a best at the tenth try still counts",
         {500, 501, 502, 503, 504, 505, 506, 507, 508, 509, 499, 600, 600, 600, 600, 600, 600, 600, 600, 600, 600},
         10,
         Report({L"000 -        500", L"001 -        501", L"002 -        502", L"003 -        503",
                 L"004 -        504", L"005 -        505", L"006 -        506", L"007 -        507",
                 L"008 -        508", L"009 -        509", L"010 -        499", L"011 -        600",
                 L"012 -        600", L"013 -        600", L"014 -        600", L"015 -        600",
                 L"016 -        600", L"017 -        600", L"018 -        600", L"019 -        600"})},
        {"a later best restarts the count",
         {500, 600, 400, 401, 402, 403, 404, 405, 406, 407, 408, 409, 410},
         2,
         Report({L"000 -        500", L"001 -        600", L"002 -        400", L"003 -        401",
                 L"004 -        402", L"005 -        403", L"006 -        404", L"007 -        405",
                 L"008 -        406", L"009 -        407", L"010 -        408", L"011 -        409"})},
        {"ticks are 32 bits and printed signed",
         {3000000000ULL, 99999999, 4294967296ULL + 7},
         2,
         Report({L"000 - -1294967296", L"001 -   99999999", L"002 -          7", L"003 -    1000000",
                 L"004 -    1000000", L"005 -    1000000", L"006 -    1000000", L"007 -    1000000",
                 L"008 -    1000000", L"009 -    1000000", L"010 -    1000000", L"011 -    1000000"})},
    };
    for (const auto& c : cases) {
        int32_t chgSortAlg = 10;
        const std::wstring report =
            sortbench::SearchSortThreshold(ThresholdSearch{chgSortAlg, Scripted(c.durations), 300});
        EXPECT_EQ(c.threshold, chgSortAlg) << c.name;
        EXPECT_EQ(c.report, report) << c.name;
    }
}

TEST(SortBenchmark, SearchReportsTheFirstHundredOfAThousandThresholds) {
    std::vector<uint64_t> falling(1000);
    for (size_t t = 0; t < falling.size(); ++t) falling[t] = 5000 - t;
    int32_t chgSortAlg = 10;
    const std::wstring report = sortbench::SearchSortThreshold(ThresholdSearch{chgSortAlg, Scripted(falling), 16});
    EXPECT_EQ(999, chgSortAlg);
    EXPECT_EQ(100, Measurements(report));
    EXPECT_TRUE(report.ends_with(L"098 -       4902\n099 -       4901 / ")) << report.substr(report.size() - 60);
}

TEST(SortBenchmark, NoMeasurementUnderTheStartLeavesTheSettingAlone) {
    int32_t chgSortAlg = 37;
    const std::vector<uint64_t> slow(20, 99999999);
    const std::wstring report = sortbench::SearchSortThreshold(ThresholdSearch{chgSortAlg, Scripted(slow), 8});
    EXPECT_EQ(37, chgSortAlg);
    // Even T = 0 counts as a try without a new best, so one line fewer.
    EXPECT_EQ(9, Measurements(report));
    EXPECT_TRUE(report.ends_with(L"008 -   99999999\n"));
}

TEST(SortBenchmark, TheButtonShowsTheReportInAMessageBox) {
    platform::fake::FakePlatform fake;
    int32_t chgSortAlg = 10;
    const ThresholdSearch search{chgSortAlg, Scripted({300, 200, 100}), 64};
    sortbench::RunSortBenchmark(search);
    int32_t again = 10;
    const std::wstring expected = sortbench::SearchSortThreshold(ThresholdSearch{again, Scripted({300, 200, 100}), 64});
    ASSERT_EQ(1u, fake.prompts().shown().size());
    EXPECT_EQ((platform::fake::ShownMessage{expected, platform::kStyleOk}), fake.prompts().shown()[0]);
    EXPECT_EQ(2, chgSortAlg);
}

TEST(SortBenchmark, SearchRunsOnTheRealClock) {
    // The counter only rises, and sorting 20000 values twice takes some time on any machine.
    int32_t chgSortAlg = -1;
    const std::wstring report =
        sortbench::SearchSortThreshold(ThresholdSearch{chgSortAlg, sortbench::SteadyTicks, 20000});
    EXPECT_GE(chgSortAlg, 0);
    EXPECT_LT(chgSortAlg, 1000);
    EXPECT_TRUE(report.starts_with(L"Results up to 100-line display.\nValue - time\n000 - "));
}

}  // namespace
