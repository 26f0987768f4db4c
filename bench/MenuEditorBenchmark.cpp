// How long the menu editor of "/M" takes with a menu file of 20,000 lines: opening it (from the
// process start until the editor waits for input with every row in its list), reading it again by
// Reload, and Save until the box that says it is saved.
// Run: wine menu_editor_benchmark.exe [runs]
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "Clock.h"
#include "support/Files.h"
#include "support/OptionTree.h"
#include "support/OptionWindow.h"
#include "support/Process.h"

namespace {

constexpr DWORD kTimeoutMs = 60000;
constexpr int kLines = 20000;
constexpr int kList = 1601;
constexpr int kSave = 1304;
constexpr int kReload = 1309;

// Popups of fifty lines each: items, separators, scripts with paths, comments and empty lines.
std::wstring MenuText() {
    std::wstring text =
        L"\xFEFF"
        L"Benchmark menu\r\n";
    for (int line = 1; line < kLines; ++line) {
        switch (line % 50) {
            case 1:
                text += L"POPUP\tGroup " + std::to_wstring(line / 50) + L"\r\n";
                break;
            case 49:
                text += L"END\r\n";
                break;
            case 10:
                text += L"\tSEPARATOR\r\n";
                break;
            case 20:
                text += L"\r\n";
                break;
            default:
                text += L"\tSCRIPT\tRun " + std::to_wstring(line) + L"\t%User_dir%\\Script\\Run" +
                        std::to_wstring(line) + L".txt\r\n";
        }
    }
    return text;
}

double Median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const int runs = argc > 1 ? std::max(1, _wtoi(argv[1])) : 5;
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("MenuEditorBenchmark" + std::to_string(GetCurrentProcessId()) + ".txt");
    e2e::WriteUtf16File(file.wstring(), MenuText());
    std::vector<double> opens, reloads, saves;
    int rows = 0;
    for (int run = 0; run < runs; ++run) {
        double start = Now();
        e2e::Process option = e2e::StartOption({L"/M", file.wstring()});
        HWND editor = option ? e2e::FindVisibleWindow(option.Id(), L"Menu Edit", kTimeoutMs, 1) : nullptr;
        if (!editor) {
            std::fprintf(stderr, "the editor did not open\n");
            return 1;
        }
        e2e::WaitUntilDialogIdle(editor, option.Handle(), kTimeoutMs);
        opens.push_back(Now() - start);
        rows = static_cast<int>(SendMessageW(GetDlgItem(editor, kList), LVM_GETITEMCOUNT, 0, 0));

        start = Now();
        SendMessageW(editor, WM_COMMAND, MAKEWPARAM(kReload, BN_CLICKED), 0);
        e2e::WaitUntilDialogIdle(editor, option.Handle(), kTimeoutMs);
        reloads.push_back(Now() - start);

        start = Now();
        PostMessageW(editor, WM_COMMAND, MAKEWPARAM(kSave, BN_CLICKED), 0);
        HWND box = e2e::FindMessageBox(option.Id(), kTimeoutMs);
        saves.push_back(Now() - start);
        if (box) e2e::Answer(box, IDOK);
        PostMessageW(editor, WM_CLOSE, 0, 0);
        option.Wait(kTimeoutMs);
    }
    std::filesystem::remove(file);
    std::printf("menu file of %d lines, %d rows in the editor, median of %d runs:\n", kLines, rows, runs);
    std::printf("  open (process start to idle editor)  %8.1f ms\n", Median(opens));
    std::printf("  reload                               %8.1f ms\n", Median(reloads));
    std::printf("  save (to the saved box)              %8.1f ms\n", Median(saves));
    return 0;
}
