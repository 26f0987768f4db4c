#include "pages/SortBenchmark.h"

#include <chrono>
#include <functional>

#include "platform/Platform.h"
#include "services/Format.h"

namespace sortbench {

int SortDepth(int maxThreads) {
    int depth = 0;
    while (maxThreads >= 2) {
        maxThreads /= 2;
        ++depth;
    }
    return depth;
}

void ListSort::Run(std::vector<int64_t>& values, size_t threshold) {
    descending_ = !descending_;
    MergeSort(std::span<int64_t>(values), scratch_, threshold, SortDepth(), descending_, std::less<int64_t>());
}

uint64_t SteadyTicks() {
    using Tick = std::chrono::duration<uint64_t, std::ratio<1, 10000000>>;
    return std::chrono::duration_cast<Tick>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::wstring SearchSortThreshold(const ThresholdSearch& search) {
    std::vector<int64_t> values(search.length);
    for (size_t i = 0; i < values.size(); ++i) values[i] = static_cast<int64_t>(i);

    ListSort sort;
    uint32_t best = 99999999;
    int unimproved = 0;
    std::wstring report = L"Results up to 100-line display.\nValue - time\n";
    for (int threshold = 0; threshold < 1000; ++threshold) {
        const uint64_t start = search.ticks();
        sort.Run(values, static_cast<size_t>(threshold));
        sort.Run(values, static_cast<size_t>(threshold));
        const uint32_t elapsed = static_cast<uint32_t>(search.ticks() - start);

        const std::wstring line = crt::Format(L"%03d - %10d", threshold, elapsed);
        if (elapsed < best) {
            search.threshold = threshold;
            best = elapsed;
            unimproved = 0;
        } else if (unimproved + 1 >= 10) {
            break;
        } else {
            ++unimproved;
        }
        if (threshold < 100) report += line + ((threshold + 1) % 3 == 0 ? L"\n" : L" / ");
    }
    return report;
}

void RunSortBenchmark(const ThresholdSearch& search) {
    const std::wstring report = SearchSortThreshold(search);
    platform::Current().prompts.ShowMessage(report, platform::kStyleOk);
}

}  // namespace sortbench
