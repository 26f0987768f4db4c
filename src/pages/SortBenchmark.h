// The host's list sort and the search for its threshold, run from the general page.
//
// The list sort is a merge sort over two buffers of equal length that hands runs shorter than the
// threshold + 2 to an insertion sort, and sorts the two halves of the top levels in parallel. The
// search times it on a million integers for rising thresholds and keeps the fastest one.
#pragma once

#include <omp.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace sortbench {

// How many levels of the recursion may split into parallel sections: floor(log2(threads)).
int SortDepth(int maxThreads);
// The same for the threads OpenMP would use now.
inline int SortDepth() {
    return SortDepth(omp_get_max_threads());
}

// The recursion of the list sort. Less orders elements; the direction flag reverses it, and in both
// directions equal elements keep their order. Elements are moved as bytes, as the host does.
template <typename T, typename Less>
requires std::is_trivially_copyable_v<T>
class MergeSortKernel {
public:
    MergeSortKernel(size_t threshold, bool descending, Less less)
        : threshold_(threshold), descending_(descending), less_(less) {}

    // Sorts b[0, n) in place; a[0, n) must hold the same elements beforehand and is used as the other
    // buffer of the merges. Splits run in parallel sections while depth - 1 is at least 1.
    void Sort(T* a, T* b, size_t n, int depth) const {
        if (n < threshold_ + 2) {
            InsertionSort(b, n);
            return;
        }
        const size_t m = n / 2;
        if (depth - 1 >= 1) {
            // Two sections need two threads; a larger team would only wait at the barrier.
#pragma omp parallel sections num_threads(2)
            {
#pragma omp section
                Sort(b, a, m, depth - 1);
#pragma omp section
                Sort(b + m, a + m, n - m, depth - 1);
            }
        } else {
            Sort(b, a, m, depth - 1);
            Sort(b + m, a + m, n - m, depth - 1);
        }
        Merge(a, m, n, b);
    }

private:
    bool Before(const T& x, const T& y) const {
        return descending_ ? less_(y, x) : less_(x, y);
    }

    void InsertionSort(T* b, size_t n) const {
        for (size_t i = 1; i < n; ++i) {
            T value = b[i];
            if (Before(value, b[0])) {
                std::memmove(b + 1, b, i * sizeof(T));
                b[0] = value;
                continue;
            }
            // The first element stops the walk, so there is no bound to check.
            size_t j = i;
            while (Before(value, b[j - 1])) {
                b[j] = b[j - 1];
                --j;
            }
            b[j] = value;
        }
    }

    // Merges the sorted a[0, m) and a[m, n) into b; the left head wins ties.
    void Merge(const T* a, size_t m, size_t n, T* b) const {
        size_t left = 0, right = m, out = 0;
        while (left < m && right < n) b[out++] = Before(a[right], a[left]) ? a[right++] : a[left++];
        if (left < m) std::memmove(b + out, a + left, (m - left) * sizeof(T));
        if (right < n) std::memmove(b + out, a + right, (n - right) * sizeof(T));
    }

    size_t threshold_;
    bool descending_;
    Less less_;
};

// Sorts values with the list sort; scratch is the second buffer, kept by the caller so that repeated
// sorts do not allocate.
template <typename T, typename Less>
void MergeSort(std::span<T> values, std::vector<T>& scratch, size_t threshold, int depth, bool descending, Less less) {
    scratch.assign(values.begin(), values.end());
    MergeSortKernel<T, Less>(threshold, descending, less).Sort(scratch.data(), values.data(), values.size(), depth);
}

// The list sort as the benchmark runs it on the host's 64-bit values: each run flips the direction,
// which starts set, so the first run sorts ascending and the next descending.
class ListSort {
public:
    void Run(std::vector<int64_t>& values, size_t threshold);
    bool descending() const { return descending_; }

private:
    bool descending_ = true;
    std::vector<int64_t> scratch_;
};

// Performance counter ticks; only differences mean anything.
using TickSource = std::function<uint64_t()>;
// The real counter: a steady clock in units of 100 ns.
uint64_t SteadyTicks();

struct ThresholdSearch {
    // The value the search settles on: ChgSortAlg, left alone when no measurement beats the start.
    int32_t& threshold;
    TickSource ticks = SteadyTicks;
    // How many rising integers are sorted per measurement.
    size_t length = 1000000;
};

// Times two runs of the list sort for each threshold from 0 up to 999, until ten in a row bring no
// new best. Returns the report: a header and the first hundred measurements as "T - ticks", three
// to a line.
std::wstring SearchSortThreshold(const ThresholdSearch& search);

// The page's benchmark button: the search, then its report in a message box.
void RunSortBenchmark(const ThresholdSearch& search);

}  // namespace sortbench
