// How long the option dialog takes to be there, over a warm Wine: from process start until the
// process waits for input and the dialog is visible, beside the floor, EmptyDialog.exe showing one
// empty dialog of the same size, and beside RequiredDialog.exe, which does only what the option
// dialog cannot do without: its libraries, its template, its tree and its group pane. Then, in each run, how long
// switching to a page that was never opened takes until the dialog is idle again, beside the same switch in
// RequiredDialog.exe, which shows the page's template bare; for contrast switching back to one already open
// and the wait for the idle dialog with nothing to do. Last, Apply with every page opened: each page
// takes its controls back and stores its settings (no host runs, so nobody is told). On the key page,
// switching the modifier, and opening the command picker with its whole tree and 3,000 listed external
// commands of a user directory of the benchmark's own. And the folder page opened on as many rules as it
// takes.
// Run: wine dialog_benchmark.exe [runs]
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "app/OptionPageTable.h"
#include "Clock.h"
#include "support/OptionTree.h"
#include "support/Files.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

constexpr DWORD kTimeoutMs = 20000;
constexpr int kColorPageId = 26;
constexpr int kKeyPageId = 2;
constexpr int kColorFirstPalette = 1302;

struct Shown {
    e2e::Process process;
    HWND dialog = nullptr;
    double ms = 0;
};

// Starts a program and times it until it waits for input with its dialog shown.
Shown StartAndTime(const std::wstring& program, const wchar_t* title) {
    Shown shown;
    const double start = Now();
    shown.process = e2e::Process::Start(program, {});
    if (!shown.process) return shown;
    WaitForInputIdle(shown.process.Handle(), kTimeoutMs);
    // Polled finely so as not to round the times.
    shown.dialog = e2e::FindVisibleWindow(shown.process.Id(), title, kTimeoutMs, 1);
    shown.ms = Now() - start;
    return shown;
}

bool Close(Shown& shown) {
    if (!shown.dialog) return false;
    PostMessageW(shown.dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    return shown.process.Wait(kTimeoutMs).has_value();
}

struct Switches {
    std::vector<double> total;
    // The part until the tree's selection message returns, the page made and shown; painting follows.
    std::vector<double> selection;
    // The colour page's switch: its grid made and filled, all of it painted.
    std::vector<double> colorPage;
    // Each page's switch by its id.
    std::map<int, double> byPage;
};

// The window and every window inside it that shows.
void CollectShown(HWND window, std::vector<HWND>& shown) {
    shown.push_back(window);
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsWindowVisible(child)) CollectShown(child, shown);
    }
}

// Returns once the dialog's thread has handled what it was sent, has painted all it must in its own
// message loop, and waits for input again. Forcing the paint from here instead (a RedrawWindow with
// RDW_UPDATENOW on another process's windows) makes Wine send each control its WM_PAINT across the
// process boundary, one round trip each, which a user never waits for.
void WaitUntilPainted(HWND window, const e2e::Process& process) {
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_BLOCK, kTimeoutMs, &result);
    std::vector<HWND> unpainted;
    CollectShown(window, unpainted);
    // Once painted, a window stays so while nothing else happens; only the others are asked again.
    for (;;) {
        RECT rect;
        std::erase_if(unpainted, [&](HWND each) { return !GetUpdateRect(each, &rect, FALSE); });
        if (unpainted.empty()) break;
        SwitchToThread();
    }
    WaitForInputIdle(process.Handle(), kTimeoutMs);
}

void WaitUntilPainted(const Shown& shown) {
    WaitUntilPainted(shown.dialog, shown.process);
}

// Selects the page's tree item and returns the page then shown; many pages share control ids.
HWND OpenPage(const Shown& shown, int id) {
    if (!e2e::SelectTreeItem(shown.dialog, id)) return nullptr;
    WaitUntilPainted(shown);
    for (HWND child = GetWindow(shown.dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16] = {};
        GetClassNameW(child, name, 16);
        if (IsWindowVisible(child) && std::wstring(name) == L"#32770") return child;
    }
    return nullptr;
}

// Selects each page of the tree once and times each switch until the dialog is idle again.
Switches TimePageSwitches(const Shown& shown) {
    Switches times;
    HWND tree = GetDlgItem(shown.dialog, e2e::kOptionTreeId);
    std::vector<HTREEITEM> items = e2e::ExpandAllTreeItems(tree);
    WaitUntilPainted(shown);
    const auto rows = OptionTreeRows();
    HTREEITEM selected = e2e::NextTreeItem(tree, nullptr, TVGN_CARET);
    for (size_t i = 0; i < items.size() && i < rows.size(); ++i) {
        if (!IsPageId(rows[i].id) || items[i] == selected) continue;
        const double start = Now();
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(items[i]));
        const double selectedAt = Now();
        WaitUntilPainted(shown);
        times.total.push_back(Now() - start);
        times.selection.push_back(selectedAt - start);
        if (rows[i].id == kColorPageId) times.colorPage.push_back(times.total.back());
        times.byPage[rows[i].id] = times.total.back();
    }
    return times;
}

// Each palette of the colour page in turn until the dialog is idle again: the grid built anew and painted.
std::vector<double> TimePalettes(const Shown& shown) {
    std::vector<double> times;
    HWND page = OpenPage(shown, kColorPageId);
    if (!page) return times;
    for (int palette = kColorFirstPalette; palette < kColorFirstPalette + 5; ++palette) {
        const double start = Now();
        SendMessageW(GetDlgItem(page, palette), BM_CLICK, 0, 0);
        WaitUntilPainted(shown);
        times.push_back(Now() - start);
    }
    return times;
}

// What waiting for the idle dialog costs by itself, with nothing to do: the floor of a switch.
std::vector<double> TimeIdleProbes(const Shown& shown, int count) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const double start = Now();
        WaitUntilPainted(shown);
        times.push_back(Now() - start);
    }
    return times;
}

// Apply from its button until the dialog has handled it, every page opened.
std::vector<double> TimeApplies(const Shown& shown, int count) {
    constexpr int kApply = 1301;
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const double start = Now();
        SendMessageW(shown.dialog, WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), 0);
        times.push_back(Now() - start);
    }
    return times;
}

constexpr int kKeyList = 1601;
constexpr int kKeyModifierFirst = 1211;
constexpr int kKeyEdit = 1301;

// A user directory whose first command list names every external command, 40001 to 43000.
std::wstring MakeUserDirectory() {
    const std::filesystem::path user =
        std::filesystem::temp_directory_path() / ("DialogBenchmark" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(user);
    std::wstring list = L"\xFEFF";
    for (int id = 40001; id <= 43000; ++id)
        list += std::to_wstring(id) + L"\t\tN--\tcmd.exe /c echo " + std::to_wstring(id) + L"\tExternal command " +
                std::to_wstring(id) + L"\r\n";
    e2e::WriteUtf16File((user / L"ExternalDefCommand.txt").wstring(), list);
    for (const wchar_t* empty : {L"ExternalUserCommand.txt", L"ScriptCommand.txt", L"ScriptNaviCommand.txt",
                                 L"UserMenuCommand.txt", L"PlugInCommand.txt"})
        e2e::WriteUtf16File((user / empty).wstring(), L"\xFEFF");
    return user.wstring();
}

struct KeyPageTimes {
    std::vector<double> modifierSwitch;
    std::vector<double> pickerOpening;
};

// The key page, opened by the page switches before: each modifier in turn, then the picker on the
// first key until it waits for input, closed again.
KeyPageTimes TimeKeyPage(const Shown& shown) {
    KeyPageTimes times;
    HWND page = OpenPage(shown, kKeyPageId);
    if (!page) return times;
    for (int modifier : {1, 2, 3, 0}) {
        const double start = Now();
        SendMessageW(GetDlgItem(page, kKeyModifierFirst + modifier), BM_CLICK, 0, 0);
        WaitUntilPainted(shown);
        times.modifierSwitch.push_back(Now() - start);
    }
    // The first key selected as the keyboard would, then Edit.
    HWND list = GetDlgItem(page, kKeyList);
    PostMessageW(list, WM_KEYDOWN, VK_HOME, 0);
    WaitUntilPainted(shown);
    const double start = Now();
    PostMessageW(page, WM_COMMAND, MAKEWPARAM(kKeyEdit, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(page, kKeyEdit)));
    HWND picker = e2e::FindVisibleWindow(shown.process.Id(), L"機能一覧", kTimeoutMs, 1);
    if (!picker) return times;
    WaitForInputIdle(shown.process.Handle(), kTimeoutMs);
    WaitUntilPainted(picker, shown.process);
    times.pickerOpening.push_back(Now() - start);
    PostMessageW(picker, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    WaitUntilPainted(shown);
    return times;
}

constexpr wchar_t kFolderInfo[] = L"Software\\Tarnwick\\Qor\\Main001\\FolderInfo";
constexpr wchar_t kFolderInfoEx[] = L"Software\\Tarnwick\\Qor\\Main001\\FolderInfoEx";
constexpr int kFolderPage = 36;

// As many folder rules as the page takes: 500 exact paths, 20 wildcard patterns, 10 expressions.
void WriteFolderRules() {
    const std::wstring fields = L"0 1 0 04 00 0 00000100 00000000 00000000 00 00\t";
    for (int n = 0; n < 500; ++n) {
        const std::wstring path = L"C:\\Folders\\Folder " + std::to_wstring(n);
        e2e::registry::WriteString(kFolderInfo, path, fields + path);
    }
    for (int n = 0; n < 30; ++n) {
        const bool wild = n < 20;
        const std::wstring number = (n % 20 < 10 ? L"00" : L"0") + std::to_wstring(n % 20);
        const std::wstring pattern = wild ? L"*\\Pattern " + number : L"^C:\\Expression " + number + L"$";
        e2e::registry::WriteString(kFolderInfoEx, (wild ? L"wp" : L"rp") + number, pattern);
        e2e::registry::WriteString(kFolderInfoEx, (wild ? L"ws" : L"rs") + number, fields + pattern);
    }
}

// The switch to the folder page, full of rules, in a dialog just opened, until the dialog is idle.
double TimeFolderPage(const Shown& shown) {
    HWND tree = GetDlgItem(shown.dialog, e2e::kOptionTreeId);
    std::vector<HTREEITEM> items = e2e::ExpandAllTreeItems(tree);
    WaitUntilPainted(shown);
    const auto rows = OptionTreeRows();
    for (size_t i = 0; i < items.size() && i < rows.size(); ++i) {
        if (rows[i].id != kFolderPage) continue;
        const double start = Now();
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(items[i]));
        WaitUntilPainted(shown);
        return Now() - start;
    }
    return -1;
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times.empty() ? -1 : times[times.size() / 2];
}

struct Figures {
    explicit Figures(const char* name) : what(name) {}

    const char* what;
    std::vector<double> times;

    double Print() {
        std::sort(times.begin(), times.end());
        const double median = Median(times);
        if (times.empty()) return median;
        std::printf("%s, %zu times: min %.1f ms, median %.1f ms, max %.1f ms\n", what, times.size(), times.front(),
                    median, times.back());
        return median;
    }
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
    // Apply stores every opened page's settings; the tests that run later expect the settings they left.
    e2e::registry::ScopedKey settings(L"Software\\Tarnwick");
    const std::wstring user = MakeUserDirectory();
    e2e::registry::WriteDword(L"Software\\Tarnwick\\Qor\\Main001\\Settings", L"UserDirMode", 2);
    e2e::registry::WriteString(L"Software\\Tarnwick\\Qor\\Main001\\Settings", L"UserDir", user);
    int runs = argc > 1 ? _wtoi(argv[1]) : 21;
    if (runs < 1) runs = 1;
    const std::wstring floorProgram = e2e::TestDirectory() + L"\\EmptyDialog.exe";
    const std::wstring controlsProgram = e2e::TestDirectory() + L"\\EmptyControlsDialog.exe";
    const std::wstring requiredProgram = e2e::TestDirectory() + L"\\RequiredDialog.exe";
    const std::wstring option = e2e::OptionExePath();

    Figures floor{"empty dialog (floor)"}, dialog{"option dialog"};
    Figures controls{"empty dialog with the common controls, a tree view and the dialog font"};
    Figures required{"the option dialog's libraries, template, tree and group pane alone"};
    Figures firstSwitch{"switch to a page never opened"}, againSwitch{"switch to a page already open"};
    Figures firstSelection{"  of which the selection message"}, idle{"waiting for the idle dialog alone"};
    Figures apply{"Apply with every page opened"};
    Figures modifierSwitch{"key page: a switch of modifier"}, picker{"command picker, its first opening in a run"};
    Figures colorPage{"colour page: created, grid built, shown"}, palette{"colour page: a palette, grid rebuilt"};
    Figures folderPage{"folder page with 500 exact and 30 pattern rules, its first opening"};
    std::map<int, std::vector<double>> pageFirst, pageAgain, pageBare;
    // The first run of each warms the caches and is not counted.
    for (int i = 0; i <= runs; ++i) {
        Shown empty = StartAndTime(floorProgram, L"Empty");
        if (!Close(empty)) {
            std::printf("the empty dialog did not show or did not end\n");
            return 1;
        }
        Shown withControls = StartAndTime(controlsProgram, L"Empty");
        if (!Close(withControls)) {
            std::printf("the empty dialog with the common controls did not show or did not end\n");
            return 1;
        }
        Shown bare = StartAndTime(requiredProgram, L"オプション");
        Switches bareSwitches = bare.dialog ? TimePageSwitches(bare) : Switches{};
        if (!Close(bare)) {
            std::printf("the option dialog's template alone did not show or did not end\n");
            return 1;
        }
        // Every run opens as a first opening does, on the group pane, not on the page Apply stored.
        e2e::registry::DeleteValue(L"Software\\Tarnwick\\QOR\\Command\\Option\\OptionPage", L"Start");
        Shown shown = StartAndTime(option, L"オプション");
        if (!shown.dialog) {
            std::printf("the option dialog did not show\n");
            return 1;
        }
        Switches first = TimePageSwitches(shown);
        Switches again = TimePageSwitches(shown);
        std::vector<double> probes = TimeIdleProbes(shown, 10);
        std::vector<double> applies = TimeApplies(shown, 5);
        KeyPageTimes keys = TimeKeyPage(shown);
        std::vector<double> palettes = TimePalettes(shown);
        if (!Close(shown)) {
            std::printf("the option dialog did not end on Cancel\n");
            return 1;
        }
        WriteFolderRules();
        Shown withRules = StartAndTime(option, L"オプション");
        const double folderMs = withRules.dialog ? TimeFolderPage(withRules) : -1;
        if (!Close(withRules) || folderMs < 0) {
            std::printf("the folder page did not open or the dialog did not end\n");
            return 1;
        }
        e2e::registry::DeleteKey(kFolderInfo);
        e2e::registry::DeleteKey(kFolderInfoEx);
        if (i == 0) continue;
        folderPage.times.push_back(folderMs);
        floor.times.push_back(empty.ms);
        controls.times.push_back(withControls.ms);
        required.times.push_back(bare.ms);
        dialog.times.push_back(shown.ms);
        firstSwitch.times.insert(firstSwitch.times.end(), first.total.begin(), first.total.end());
        for (const auto& [id, ms] : first.byPage) pageFirst[id].push_back(ms);
        for (const auto& [id, ms] : again.byPage) pageAgain[id].push_back(ms);
        for (const auto& [id, ms] : bareSwitches.byPage) pageBare[id].push_back(ms);
        firstSelection.times.insert(firstSelection.times.end(), first.selection.begin(), first.selection.end());
        againSwitch.times.insert(againSwitch.times.end(), again.total.begin(), again.total.end());
        idle.times.insert(idle.times.end(), probes.begin(), probes.end());
        apply.times.insert(apply.times.end(), applies.begin(), applies.end());
        modifierSwitch.times.insert(modifierSwitch.times.end(), keys.modifierSwitch.begin(), keys.modifierSwitch.end());
        picker.times.insert(picker.times.end(), keys.pickerOpening.begin(), keys.pickerOpening.end());
        colorPage.times.insert(colorPage.times.end(), first.colorPage.begin(), first.colorPage.end());
        palette.times.insert(palette.times.end(), palettes.begin(), palettes.end());
    }
    const double floorMs = floor.Print();
    const double controlsMs = controls.Print();
    const double requiredMs = required.Print();
    const double dialogMs = dialog.Print();
    std::printf("the common controls and the font over the floor: %.1f ms (ratio %.2f)\n", controlsMs - floorMs,
                controlsMs / floorMs);
    std::printf("what the option dialog cannot do without, over the floor: %.1f ms (ratio %.2f)\n",
                requiredMs - floorMs, requiredMs / floorMs);
    std::printf("option dialog over that: %.1f ms (ratio %.2f)\n", dialogMs - requiredMs, dialogMs / requiredMs);
    std::printf("option dialog over the floor: %.1f ms (ratio %.2f, target 1.30 or less)\n", dialogMs - floorMs,
                dialogMs / floorMs);
    const double switchMs = firstSwitch.Print();
    firstSelection.Print();
    std::printf("page switch to a new page: median %.1f ms (target under 30 ms)\n", switchMs);
    againSwitch.Print();
    std::printf(
        "each page, median of its first opening (target under 50 ms), of a switch back to it, and of the\n"
        "first opening of its template alone in the bare program, with what the program adds to that:\n");
    for (auto& [id, times] : pageFirst) {
        const double bareMs = Median(pageBare[id]);
        std::printf("  page %2d: %6.1f ms, %6.1f ms, bare %6.1f ms, ours %+6.1f ms%s\n", id, Median(times),
                    Median(pageAgain[id]), bareMs, Median(times) - bareMs, Median(times) > 50 ? "  over" : "");
    }
    idle.Print();
    std::printf("Apply: median %.1f ms (target under 20 ms)\n", apply.Print());
    std::printf("key page modifier switch: median %.1f ms (target under 15 ms)\n", modifierSwitch.Print());
    std::printf("command picker opening: median %.1f ms (target under 150 ms)\n", picker.Print());
    std::printf("colour page opening: median %.1f ms (target under 40 ms)\n", colorPage.Print());
    std::printf("colour palette press: median %.1f ms (target under 15 ms)\n", palette.Print());
    std::printf("folder page opening: median %.1f ms (target under 150 ms)\n", folderPage.Print());
    std::filesystem::remove_all(user);
    return 0;
}
