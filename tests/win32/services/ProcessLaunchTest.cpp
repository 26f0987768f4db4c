// Starting real programs: one that takes dropped files and one that only waits, both built beside the end-to-end tests.
#include "services/ProcessLaunch.h"

#include <windows.h>
// after windows.h, which they need
#include <shellapi.h>
#include <tlhelp32.h>

#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <vector>

#include "script/ScriptCall.h"
#include "services/MessageCatalog.h"
#include "unit/Utf16.h"
#include "win32/support/ChildPrograms.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using platform::fake::ShownMessage;
using testing_support::CloseDropTargets;
using testing_support::HelperPath;
using testing_support::kDropTargetClass;
using testing_support::PumpMessages;
using testing_support::TempLog;
using testing_support::Utf8;
using testing_support::WaitForLine;

// The messages the drop's failures are told by.
class LaunchTest : public testing::Test {
protected:
    LaunchTest() {
        auto& fake = platform.fake();
        fake.files().AddDirectory(L"C:\\Lang");
        fake.files().AddFile(L"C:\\Lang\\Msg.txt",
                             Utf16Bytes(L"62541\tcannot start\r\n62544\tnot idle\r\n62547\tno window\r\n", true));
        messages.SetPath(L"C:\\Lang\\Msg.txt");
    }
    ~LaunchTest() override { CloseDropTargets(); }

    testing_support::RealHostPlatform platform;
    MessageCatalog messages;
};

// Wine hands a posted drop to another process without its memory, so the receiver finds no files
// there; Windows copies the block across.
bool RunningOnWine() {
    HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    return ntdll && GetProcAddress(ntdll, "wine_get_version");
}

// The files reach the program's window, which comes forward; a program that is not there is told.
TEST_F(LaunchTest, DropLaunchHandsTheFilesToTheProgramsWindow) {
    std::wstring log = TempLog(L"option-droplaunch.log");
    SetEnvironmentVariableW(L"DROPTARGET_LOG", log.c_str());
    DropLaunch(HelperPath(L"DropTarget.exe"), {L"C:\\a.txt", L"Z:\\b c\\\u00E9.txt"}, messages);
    SetEnvironmentVariableW(L"DROPTARGET_LOG", nullptr);

    EXPECT_EQ("args ", WaitForLine(log, "args")) << "the program alone";
    std::string drop = WaitForLine(log, "dropfiles");
    if (RunningOnWine() && drop == "dropfiles ")
        std::cout << "[ NOTE     ] the drop arrived; Wine does not carry its files to another process\n";
    else
        EXPECT_EQ(Utf8(L"dropfiles C:\\a.txt|Z:\\b c\\\u00E9.txt"), drop);
    HWND target = FindWindowW(kDropTargetClass, nullptr);
    EXPECT_EQ(target, GetForegroundWindow());
    EXPECT_TRUE(platform.fake().prompts().shown().empty());

    std::wstring missing = testing_support::TestDirectory() + L"\\NoSuchProgram.exe";
    DropLaunch(missing, {L"C:\\a.txt"}, messages);
    EXPECT_EQ((std::vector<ShownMessage>{{L"cannot start\n" + missing, 0}}), platform.fake().prompts().shown());
}

// Within one process the block is read back by the shell's own DragQueryFileW.
std::vector<std::wstring> droppedHere;

LRESULT CALLBACK DropWindowProc(HWND hwnd, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg != WM_DROPFILES) return DefWindowProcW(hwnd, msg, wp, lp);
    auto drop = reinterpret_cast<HDROP>(wp);
    POINT point{-1, -1};
    BOOL client = DragQueryPoint(drop, &point);
    droppedHere.push_back(L"point " + std::to_wstring(point.x) + L"," + std::to_wstring(point.y) +
                          (client ? L" client" : L""));
    for (UINT i = 0, count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0); i < count; ++i) {
        wchar_t path[MAX_PATH];
        DragQueryFileW(drop, i, path, MAX_PATH);
        droppedHere.push_back(path);
    }
    DragFinish(drop);
    return 0;
}

TEST(DropFilesOnWindows, ThePostedBlockReadsBackAsTheFiles) {
    testing_support::RealHostPlatform platform;
    testing_support::RegisterWindowClass(L"OptionTests.DropHere", DropWindowProc);
    HWND window = CreateWindowExW(0, L"OptionTests.DropHere", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(nullptr, window);
    droppedHere.clear();
    platform::Current().processes.PostDropFiles(reinterpret_cast<platform::WindowRef>(window),
                                                DropFilesBlock({L"C:\\a.txt", L"Z:\\b c\\\u00E9.txt"}));
    PumpMessages(50);
    EXPECT_EQ((std::vector<std::wstring>{L"point 0,0 client", L"C:\\a.txt", L"Z:\\b c\\\u00E9.txt"}), droppedHere);
    DestroyWindow(window);
}

// The fake's prompts that also take a handle to the waiting program while the question is shown.
class WatchingPrompts : public platform::fake::FakePrompts {
public:
    ~WatchingPrompts() override {
        if (process) CloseHandle(process);
    }
    int Ask(const std::wstring& text, const std::wstring& caption, unsigned style) override {
        HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
        PROCESSENTRY32W entry{};
        entry.dwSize = sizeof(entry);
        for (BOOL more = Process32FirstW(snapshot, &entry); more && !process; more = Process32NextW(snapshot, &entry))
            if (entry.th32ParentProcessID == GetCurrentProcessId() && _wcsicmp(entry.szExeFile, L"ExitLater.exe") == 0)
                process = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION | PROCESS_TERMINATE, FALSE,
                                      entry.th32ProcessID);
        CloseHandle(snapshot);
        return FakePrompts::Ask(text, caption, style);
    }

    HANDLE process = nullptr;
};

TEST(WaitedLaunchOnWindows, AProgramThatOutlivesTheWaitIsKilledOnlyOnYes) {
    const std::wstring program = L"\"" + HelperPath(L"ExitLater.exe") + L"\"";
    const ShownMessage question{L"Timeout!\nAre you sure you want to kill the process?", 4};
    for (int answer : {IDNO, IDYES}) {
        SCOPED_TRACE(answer == IDYES ? "Yes" : "No");
        testing_support::RealHostPlatform base;
        WatchingPrompts prompts;
        prompts.Answer(answer);
        platform::Platform& real = platform::Current();
        platform::Platform withPrompts{real.registry, real.files,     real.environment,  prompts,
                                       real.system,   real.windows,   real.sharedMemory, real.processes,
                                       real.shell,    real.codePages, real.images};
        platform::Installed installed(withPrompts);

        EXPECT_FALSE(WaitedLaunch(program, L"10000 5", L"", SW_HIDE, 300));
        EXPECT_EQ(std::vector<ShownMessage>{question}, prompts.shown());
        ASSERT_NE(nullptr, prompts.process);
        DWORD code = 0;
        if (answer == IDYES) {
            EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(prompts.process, 5000));
            GetExitCodeProcess(prompts.process, &code);
            EXPECT_EQ(999u, code);
        } else {
            EXPECT_EQ(WAIT_TIMEOUT, WaitForSingleObject(prompts.process, 0)) << "still running";
            TerminateProcess(prompts.process, 0);
        }
    }
}

// A waited launch succeeds when the program ends in time and fails silently when it cannot start;
// "call" gives the exit code of a program that ended, "exec" 259 of one that still runs.
TEST(WaitedLaunchOnWindows, AProgramThatEndsInTimeGivesItsResult) {
    testing_support::RealHostPlatform platform;
    const std::wstring program = L"\"" + HelperPath(L"ExitLater.exe") + L"\"";
    EXPECT_TRUE(WaitedLaunch(program, L"0 3", L"C:\\", SW_HIDE, 10000));
    EXPECT_FALSE(WaitedLaunch(L"C:\\NoSuchProgram.exe", L"", L"", SW_HIDE, 10000));
    EXPECT_FALSE(WaitedLaunch(program, L"0 3", L"C:\\NoSuchDirectory", SW_HIDE, 10000));
    EXPECT_TRUE(platform.fake().prompts().shown().empty());

    CallSettings hidden;
    hidden.show = SW_HIDE;
    EXPECT_EQ(L"3", CallProgram(CallKind::Call, program + L" 0 3", hidden).value_or(L"none"));
    EXPECT_EQ(L"259", CallProgram(CallKind::Exec, program + L" 2000 4", hidden).value_or(L"none"));
    EXPECT_FALSE(CallProgram(CallKind::Exec, L"C:\\NoSuchProgram.exe", {}));
    ASSERT_EQ(1u, platform.fake().prompts().shown().size()) << "the system's reason";
}

}  // namespace
