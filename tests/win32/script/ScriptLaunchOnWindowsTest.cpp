// Scripts that start real programs: a "run" per item, "exrun" entries once the script has ended, and
// "call" whose value is the program's exit code or, after the time-out question, 259.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#include "settings/UserDirectories.h"
#include "unit/Utf16.h"
#include "win32/support/ChildPrograms.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using testing_support::HelperPath;
using testing_support::TempLog;
using testing_support::Utf8;
using testing_support::WaitForLine;

class ScriptLaunchOnWindows : public testing::Test {
protected:
    ScriptLaunchOnWindows() {
        fake().environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
        fake().files().AddDirectory(L"C:\\Qor\\command\\Option");
    }
    ~ScriptLaunchOnWindows() override { testing_support::CloseDropTargets(); }

    platform::fake::FakePlatform& fake() { return platform_.fake(); }

    int32_t RunScript(const std::vector<std::wstring>& lines) {
        std::wstring text;
        for (const std::wstring& line : lines) text += line + L"\r\n";
        fake().files().AddFile(L"C:\\Scripts\\case.txt", Utf16Bytes(text, true));
        return runner_.Run(L"C:\\Scripts\\case.txt", L"", L"", selection, static_cast<uint32_t>(-1), 1, 0, 0, 1,
                           &variables, nullptr);
    }

    SelectionList selection;
    VariableTable variables;

private:
    testing_support::RealHostPlatform platform_;
    UserDirectories directories_;
    MessageCatalog messages_;
    ScriptRunner runner_{directories_, messages_};
};

// Each item gets a start of its own with its macros put in, and each exrun entry starts for the items
// its filter takes once the script is over.
TEST_F(ScriptLaunchOnWindows, RunStartsPerItemAndExRunAfterTheScript) {
    const std::wstring target = HelperPath(L"DropTarget.exe");
    const std::wstring logs[] = {TempLog(L"run-one.log"), TempLog(L"run-two.log"), TempLog(L"exrun-two.log")};
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    selection = {L"C:\\Data\\one.txt", L"C:\\Data\\two.jpg"};
    RunScript({L"openmode = 1", std::wstring(L"commandlineoption = --log \"") + temp + L"run-?Name?.log\" ?SelFile?",
               L"run = " + target, L"filter = jpg",
               std::wstring(L"commandlineoption = --log \"") + temp + L"exrun-?Name?.log\" ?SelFile?",
               L"exrun = " + target});
    EXPECT_EQ("args --log \"" + Utf8(logs[0]) + "\" \"C:\\Data\\one.txt\"", WaitForLine(logs[0], "args"));
    EXPECT_EQ("args --log \"" + Utf8(logs[1]) + "\" \"C:\\Data\\two.jpg\"", WaitForLine(logs[1], "args"));
    EXPECT_EQ("args --log \"" + Utf8(logs[2]) + "\" \"C:\\Data\\two.jpg\"", WaitForLine(logs[2], "args"));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(TempLog(L"exrun-one.log").c_str()))
        << "the filter kept the other item from the entry";
}

// The function form waits for the program and stores its exit code. Past the time-out the user is
// asked: Yes ends the program, No leaves it running; either way the value is 259 at once. (That Yes
// ends it with 999 is the process launch tests' business.)
TEST_F(ScriptLaunchOnWindows, CallStoresTheExitCode) {
    const std::wstring program = L"\"" + HelperPath(L"ExitLater.exe") + L"\"";
    fake().prompts().Answer(platform::kAnswerYes);
    fake().prompts().Answer(platform::kAnswerNo);
    const DWORD start = GetTickCount();
    RunScript({L"showwindow = 0", L"var code = call," + program + L" 0 3", L"timeout = 300",
               L"var ended = call," + program + L" 20000 4", L"var left = call," + program + L" 3000 5"});
    EXPECT_EQ(L"3", *variables.Find(L"code"));
    EXPECT_EQ(L"259", *variables.Find(L"ended"));
    EXPECT_EQ(L"259", *variables.Find(L"left"));
    EXPECT_LT(GetTickCount() - start, 10000u) << "neither program was waited for to its end";
    EXPECT_EQ(2u, fake().prompts().shown().size()) << "the time-out question, twice";
}

}  // namespace
