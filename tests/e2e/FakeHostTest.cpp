// The stand-in host must record exactly what it is sent, or no end-to-end test can be trusted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"

using e2e::FakeHost;
using e2e::FakeHostOptions;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The way the tool hands text over: its size counts 8 bytes per character, so only the zero ends it.
void SendText(HWND host, ULONG_PTR code, const std::wstring& text) {
    COPYDATASTRUCT data{code, static_cast<DWORD>(text.size() * 8 + 8), const_cast<wchar_t*>(text.c_str())};
    SendMessageW(host, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
}

std::vector<HWND> HostWindows() {
    std::vector<HWND> windows;
    for (HWND w = FindWindowExW(GetDesktopWindow(), nullptr, e2e::kHostClassName, nullptr); w;
         w = FindWindowExW(GetDesktopWindow(), w, e2e::kHostClassName, nullptr))
        windows.push_back(w);
    return windows;
}

}  // namespace

TEST(FakeHost, LogsEachMessageItIsSentAsOneLine) {
    struct Case {
        const char* what;
        UINT msg;
        WPARAM wp;
        LPARAM lp;
        std::string expected;
    };
    const Case cases[] = {
        {"series start", WM_COMMAND, 48999, 0, "command 48999"},
        {"series end", WM_COMMAND, 49099, 0, "command 49099"},
        {"whole wParam", WM_COMMAND, 0x12345, 0, "command 74565"},
        {"lParam when it is not 0", WM_COMMAND, 5, -2, "command 5 -2"},
        {"private message", 32776, 5, -7, "message 32776 5 -7"},
        {"highest private message", 0xBFFF, 0, 1, "message 49151 0 1"},
    };
    FakeHost host;
    ASSERT_TRUE(host.Window());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        SendMessageW(host.Window(), c.msg, c.wp, c.lp);
        EXPECT_THAT(host.TakeLines(), ElementsAre(c.expected));
    }
}

TEST(FakeHost, LogsCopiedTextUpToItsZero) {
    struct Case {
        ULONG_PTR code;
        std::wstring text;
        std::string expected;
    };
    const Case cases[] = {
        {1, L"C:\\Users\\me\\file.txt", "copydata 1 C:\\Users\\me\\file.txt"},
        {0, L"", "copydata 0 "},
        {4294967295u, L"two  blanks ", "copydata 4294967295 two  blanks "},
        {7, L"設定\x00E9", "copydata 7 \xE8\xA8\xAD\xE5\xAE\x9A\xC3\xA9"},
        {2, L"line\r\nnext\ttab", "copydata 2 line\\u000D\\u000Anext\\u0009tab"},
    };
    FakeHost host;
    ASSERT_TRUE(host.Window());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.expected);
        SendText(host.Window(), c.code, c.text);
        EXPECT_THAT(host.TakeLines(), ElementsAre(c.expected));
    }
}

TEST(FakeHost, TwoHostsRunAtOnceWithTheirOwnLogs) {
    FakeHost first;
    FakeHost second(FakeHostOptions{.title = L"Qor second", .hidden = true});
    ASSERT_TRUE(first.Window());
    ASSERT_TRUE(second.Window());
    EXPECT_NE(first.LogPath(), second.LogPath());
    EXPECT_THAT(HostWindows(), testing::IsSupersetOf({first.Window(), second.Window()}));

    SendMessageW(first.Window(), WM_COMMAND, 49001, 0);
    SendText(second.Window(), 3, L"only the second");
    SendMessageW(second.Window(), WM_COMMAND, 49002, 0);

    EXPECT_EQ(first.Commands(), std::vector<unsigned>{49001});
    EXPECT_THAT(first.Lines(), testing::Not(testing::Contains(testing::HasSubstr("copydata"))));
    EXPECT_THAT(second.Lines(), ElementsAre("copydata 3 only the second", "command 49002"));
    EXPECT_EQ(0u, first.Stop());
    EXPECT_EQ(0u, second.Stop());
}

TEST(FakeHost, AnotherClassMakesAWindowThatIsNoHost) {
    FakeHost other(FakeHostOptions{.title = L"Script trace Qor", .className = L"FakeHostOther", .hidden = true});
    ASSERT_TRUE(other.Window());
    EXPECT_EQ(other.Window(), FindWindowW(nullptr, L"Script trace Qor"));
    EXPECT_THAT(HostWindows(), testing::Not(testing::Contains(other.Window())));
}

TEST(FakeHost, LogsBecomingActive) {
    FakeHost first;
    FakeHost second;
    ASSERT_TRUE(first.Window());
    ASSERT_TRUE(second.Window());
    first.TakeLines();
    SetForegroundWindow(first.Window());
    EXPECT_TRUE(first.WaitForLine("activate"));
    EXPECT_THAT(first.TakeLines(), ElementsAre("activate"));
}

TEST(FakeHost, EndsWithZeroWhenClosed) {
    FakeHost asked;
    ASSERT_TRUE(asked.Window());
    EXPECT_EQ(0u, asked.Stop());

    FakeHost closed;
    ASSERT_TRUE(closed.Window());
    PostMessageW(closed.Window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, closed.Stop());
    EXPECT_THAT(closed.Lines(), IsEmpty());
}
