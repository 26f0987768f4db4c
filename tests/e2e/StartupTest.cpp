// Runs that end at once, as the host starts the program for a file ("/T").
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/FakeHostProcess.h"
#include "support/HostHandshake.h"
#include "support/OptionWindow.h"
#include "support/Process.h"
#include "support/Registry.h"

namespace {

namespace reg = e2e::registry;

// Another window takes the foreground, so that coming forward is a change the host logs.
class OtherWindow {
public:
    OtherWindow() {
        window_ = CreateWindowExW(0, L"STATIC", L"other", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                  nullptr, nullptr);
        SetForegroundWindow(window_);
        Pump();
    }
    ~OtherWindow() { DestroyWindow(window_); }

    static void Pump() {
        MSG msg;
        for (int i = 0; i < 20; ++i) {
            while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
            Sleep(10);
        }
    }

private:
    HWND window_;
};

const int kBlockFirst = static_cast<int>(GetCurrentProcessId());
constexpr int kBlockSecond = 1;

// A switch string that names the block each row lays out, or another one.
std::wstring NamingTheBlock(int windowMode, int reactivate, const wchar_t* word, int second = kBlockSecond) {
    return e2e::SwitchString(windowMode, reactivate, kBlockFirst, second, 1024, word);
}

// The block is read exactly when the switch string names it with "Share" (a missing one is no fault); the
// host comes forward exactly on reactivate 1 in ten fields. A copy already running changes none of that.
TEST(Startup, ARunThatEndsAtOnceReadsTheBlockAndHandsBackOnlyWhenAsked) {
    // clang-format off
    struct Case { const char* what; std::vector<std::wstring> args; std::wstring switches; bool read; bool forward; };
    // clang-format on
    const Case cases[] = {
        {"Share, reactivate 1", {L"/T", L"C:\\none.txt"}, NamingTheBlock(0, 1, L"Share"), true, true},
        {"another word, reactivate 2", {L"/T", L"x"}, NamingTheBlock(0, 2, L"None"), false, false},
        {"Share, no such block", {L"/T", L"x"}, NamingTheBlock(3, 0, L"Share", 424242), false, false},
    };
    // The mark a first copy leaves; every run here must start and end as usual beside it.
    e2e::UniqueHandle otherCopy(CreateMutexW(nullptr, FALSE, L"ExCommand.Option.exe"));
    ASSERT_TRUE(otherCopy);
    e2e::FakeHost host;
    ASSERT_TRUE(host.Window());
    const std::wstring text =
        e2e::ShareBlockText(L"C:\\work", L"-o", {L"C:\\work\\a.txt", L"C:\\work\\b.txt"}, {L"C:\\x"});
    std::wstring read = text;
    std::replace(read.begin(), read.end(), L'\t', L'\0');
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        e2e::ShareBlock block(kBlockFirst, kBlockSecond, 1024, text);
        ASSERT_TRUE(block.Valid());
        OtherWindow other;
        host.TakeLines();

        EXPECT_EQ(0u, e2e::RunOption(c.args, {e2e::HostSwitch(c.switches)}));
        EXPECT_EQ(c.read ? read : text, block.Contents().substr(0, text.size()));
        for (int tries = 0; c.forward && tries < 60 && GetForegroundWindow() != host.Window(); ++tries) {
            OtherWindow::Pump();
        }
        OtherWindow::Pump();
        EXPECT_EQ(c.forward, GetForegroundWindow() == host.Window());
        const std::vector<std::string> heard = host.TakeLines();
        EXPECT_EQ(c.forward ? std::vector<std::string>{"activate"} : std::vector<std::string>{}, heard);
    }
}

// A message file without its resource library (here the English file under a name of its own).
TEST(Language, AMissingLibraryIsToldInTheChosenLanguage) {
    reg::ScopedKey settings(reg::kSettings);
    const std::wstring lang = e2e::StageRoot() + L"\\Lang\\";
    ASSERT_TRUE(CopyFileW((lang + L"Msg.en-US.txt").c_str(), (lang + L"Msg.zz-ZZ.txt").c_str(), FALSE));
    reg::WriteString(reg::kSettings, L"NLS", L".zz-ZZ");
    e2e::Process option = e2e::StartOption({L"/T", L"C:\\none.txt"});
    ASSERT_TRUE(option);
    HWND box = e2e::FindMessageBox(option.Id());
    ASSERT_NE(nullptr, box);
    const std::wstring text = e2e::DialogText(box);
    EXPECT_NE(std::wstring::npos, text.find(L"The language resource could not be loaded."))
        << "shown: " << testing::PrintToString(text);
    EXPECT_EQ(0u, option.CloseDialog(box, IDOK));
    DeleteFileW((lang + L"Msg.zz-ZZ.txt").c_str());
}

}  // namespace
