// How long Option.exe takes from process start to the end of its start-up, for "/T file" (which ends
// right after the start-up), over a warm Wine, beside the floor: this program started to end at once.
// Run: wine startup_benchmark.exe [runs]
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <vector>

#include "support/Process.h"

namespace {

double Milliseconds(LARGE_INTEGER from, LARGE_INTEGER to) {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Times runs of one program and prints min, median and max; the median, or -1 when a run failed.
template <typename Run>
double Measure(const char* what, int runs, Run run) {
    run();  // the first run warms the caches
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        LARGE_INTEGER start, end;
        QueryPerformanceCounter(&start);
        DWORD code = run();
        QueryPerformanceCounter(&end);
        if (code != 0) {
            std::printf("%s: run %d ended with %lu\n", what, i, code);
            return -1;
        }
        times.push_back(Milliseconds(start, end));
    }
    std::sort(times.begin(), times.end());
    double median = times[times.size() / 2];
    std::printf("%s, %d runs: min %.1f ms, median %.1f ms, max %.1f ms\n", what, runs, times.front(), median,
                times.back());
    return median;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc > 1 && std::wcscmp(argv[1], L"--exit") == 0) return 0;
    int runs = argc > 1 ? _wtoi(argv[1]) : 21;
    if (runs < 1) runs = 1;
    std::wstring self = e2e::TestDirectory() + L"\\startup_benchmark.exe";
    double floor =
        Measure("empty program (floor)", runs, [&] { return e2e::Process::Start(self, {L"--exit"}).WaitOrKill(); });
    double option = Measure("Option.exe /T file", runs, [] { return e2e::RunOption({L"/T", L"C:\\none.txt"}); });
    if (floor <= 0 || option <= 0) return 1;
    std::printf("start-up of Option.exe: %.1f ms over the floor (ratio %.2f)\n", option - floor, option / floor);
    return 0;
}
