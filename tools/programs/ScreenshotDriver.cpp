// Takes a picture of the option dialog for every item of its tree: finds the dialog that a running
// Option.exe shows, expands the tree, selects each item in turn and saves the dialog's rectangle of
// the screen as <folder>\item-<id>.bmp. Ends the dialog with Cancel.
// Run: wine ScreenshotDriver.exe <folder>
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <string>
#include <vector>

#include "app/OptionPageTable.h"
#include "resources/app/AppIds.h"
#include "support/OptionTree.h"
#include "support/Screenshot.h"

namespace {

constexpr DWORD kFindTimeoutMs = 30000;
// Lets the X server finish what the program drew before the screen is read.
constexpr DWORD kSettleMs = 100;

// The option dialog is known by its tree, whatever language its title is in.
HWND FindDialog() {
    for (DWORD waited = 0; waited < kFindTimeoutMs; waited += 50) {
        HWND found = nullptr;
        EnumWindows(
            [](HWND window, LPARAM result) {
                wchar_t name[16] = {};
                GetClassNameW(window, name, 16);
                if (std::wstring(name) != L"#32770" || !IsWindowVisible(window) || !GetDlgItem(window, IDC_OPTION_TREE))
                    return TRUE;
                *reinterpret_cast<HWND*>(result) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        if (found) return found;
        Sleep(50);
    }
    return nullptr;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: ScreenshotDriver.exe <folder>\n");
        return 2;
    }
    const std::wstring folder = argv[1];
    HWND dialog = FindDialog();
    if (!dialog) {
        std::fprintf(stderr, "no option dialog appeared\n");
        return 1;
    }
    DWORD processId = 0;
    GetWindowThreadProcessId(dialog, &processId);
    HANDLE process = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, processId);
    HWND tree = GetDlgItem(dialog, e2e::kOptionTreeId);

    // Item data lives in the other process; the items come in the order of the table.
    const auto rows = OptionTreeRows();
    std::vector<HTREEITEM> items = e2e::ExpandAllTreeItems(tree);
    if (items.size() != rows.size()) {
        std::fprintf(stderr, "the tree has %zu items, %zu expected\n", items.size(), rows.size());
    }
    int failures = 0;
    for (size_t i = 0; i < items.size() && i < rows.size(); ++i) {
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(items[i]));
        e2e::WaitUntilDialogIdle(dialog, process);
        Sleep(kSettleMs);
        const std::wstring path = folder + L"\\item-" + std::to_wstring(rows[i].id) + L".bmp";
        if (e2e::CaptureWindow(dialog, path)) {
            std::printf("item-%d.bmp\n", rows[i].id);
        } else {
            std::fprintf(stderr, "item %d: no picture (error %lu)\n", rows[i].id, GetLastError());
            ++failures;
        }
    }
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    if (process) CloseHandle(process);
    return failures == 0 && items.size() == rows.size() ? 0 : 1;
}
