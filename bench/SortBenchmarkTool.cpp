// Times the list sort against the standard library on a million random 64-bit integers, with one
// and with two threads, and prints the figures and their ratios.
#include <omp.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

#include "pages/SortBenchmark.h"

namespace {

constexpr size_t kLength = 1000000;
constexpr int kRepeats = 7;

// The fastest of several runs, in milliseconds; each run sorts a fresh copy of the input.
template <typename Sort>
double Fastest(const std::vector<int64_t>& input, Sort sort) {
    std::vector<int64_t> values;
    double best = 1e30;
    for (int i = 0; i < kRepeats; ++i) {
        values = input;
        const auto start = std::chrono::steady_clock::now();
        sort(values);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        if (!std::is_sorted(values.begin(), values.end())) std::printf("not sorted!\n");
        best = std::min(best, took.count());
    }
    return best;
}

struct Kernel {
    size_t threshold;
    int depth;
    std::vector<int64_t>* scratch;
    void operator()(std::vector<int64_t>& values) const {
        sortbench::MergeSort(std::span<int64_t>(values), *scratch, threshold, depth, false, std::less<int64_t>());
    }
};

}  // namespace

int main() {
    std::mt19937_64 random(20240531);
    std::vector<int64_t> input(kLength);
    for (auto& value : input) value = static_cast<int64_t>(random());
    std::vector<int64_t> scratch;

    omp_set_num_threads(1);
    size_t bestThreshold = 0;
    double bestKernel = 1e30;
    std::printf("threshold sweep, one thread (ms):");
    for (size_t threshold : {0, 4, 8, 12, 16, 20, 24, 32, 48, 64, 96}) {
        const double took = Fastest(input, Kernel{threshold, sortbench::SortDepth(), &scratch});
        std::printf(" %zu:%.1f", threshold, took);
        if (took < bestKernel) bestKernel = took, bestThreshold = threshold;
    }
    std::printf("\n");

    auto stable = [](std::vector<int64_t>& v) { std::stable_sort(v.begin(), v.end()); };
    auto plain = [](std::vector<int64_t>& v) { std::sort(v.begin(), v.end()); };
    const double stable1 = Fastest(input, stable);
    const double sort1 = Fastest(input, plain);
    const double kernel1 = Fastest(input, Kernel{bestThreshold, sortbench::SortDepth(), &scratch});

    omp_set_num_threads(2);
    const int depth2 = sortbench::SortDepth();
    const double kernel2 = Fastest(input, Kernel{bestThreshold, depth2, &scratch});
    // Depth 1 never enters a parallel region; this is what one split in two would give.
    const double kernelSplit = Fastest(input, Kernel{bestThreshold, 2, &scratch});
    const double stable2 = Fastest(input, stable);
    const double sort2 = Fastest(input, plain);

    std::printf("%zu random 64-bit integers, fastest of %d runs, best threshold %zu\n", kLength, kRepeats,
                bestThreshold);
    std::printf("one thread:   kernel %.1f ms, stable_sort %.1f ms, sort %.1f ms\n", kernel1, stable1, sort1);
    std::printf(
        "two threads:  kernel (depth %d) %.1f ms, kernel (depth 2) %.1f ms, stable_sort %.1f ms, sort %.1f ms\n",
        depth2, kernel2, kernelSplit, stable2, sort2);
    std::printf("kernel / stable_sort, one thread: %.2f\n", kernel1 / stable1);
    std::printf("kernel / sort, one thread:        %.2f\n", kernel1 / sort1);
    std::printf("speed-up with two threads: depth %d %.2fx, depth 2 %.2fx\n", depth2, kernel1 / kernel2,
                kernel1 / kernelSplit);

    omp_set_num_threads(omp_get_num_procs());
    int32_t chosen = -1;
    const auto start = std::chrono::steady_clock::now();
    sortbench::SearchSortThreshold(sortbench::ThresholdSearch{chosen});
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("the page's search (%d threads): ChgSortAlg %d after %.1f s\n", omp_get_max_threads(), chosen,
                took.count());
    return 0;
}
