// The stand-in host must record exactly what it is sent, or no end-to-end test can be trusted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/FakeHostProcess.h"

using e2e::FakeHost;
using testing::ElementsAre;

namespace {

// The way the tool hands text over: its size counts 8 bytes per character, so only the zero ends it.
void SendText(HWND host, ULONG_PTR code, const std::wstring& text) {
    COPYDATASTRUCT data{code, static_cast<DWORD>(text.size() * 8 + 8), const_cast<wchar_t*>(text.c_str())};
    SendMessageW(host, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
}

}  // namespace

TEST(FakeHost, LogsEachMessageAndTextItIsSentAsOneLine) {
    struct Case {
        UINT msg;
        WPARAM wp;
        LPARAM lp;
        std::wstring text;  // for WM_COPYDATA, whose code is wp
        std::string expected;
    };
    const Case cases[] = {
        {WM_COMMAND, 48999, 0, L"", "command 48999"},
        {WM_COMMAND, 0x12345, 0, L"", "command 74565"},
        {WM_COMMAND, 5, -2, L"", "command 5 -2"},
        {32776, 5, -7, L"", "message 32776 5 -7"},
        {0xBFFF, 0, 1, L"", "message 49151 0 1"},
        {WM_COPYDATA, 1, 0, L"C:\\Users\\me\\file.txt", "copydata 1 C:\\Users\\me\\file.txt"},
        {WM_COPYDATA, 0, 0, L"", "copydata 0 "},
        {WM_COPYDATA, 4294967295u, 0, L"two  blanks ", "copydata 4294967295 two  blanks "},
        {WM_COPYDATA, 7, 0, L"設定\x00E9", "copydata 7 \xE8\xA8\xAD\xE5\xAE\x9A\xC3\xA9"},
        {WM_COPYDATA, 2, 0, L"line\r\nnext\ttab", "copydata 2 line\\u000D\\u000Anext\\u0009tab"},
    };
    FakeHost host;
    ASSERT_TRUE(host.Window());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.expected);
        if (c.msg == WM_COPYDATA)
            SendText(host.Window(), c.wp, c.text);
        else
            SendMessageW(host.Window(), c.msg, c.wp, c.lp);
        EXPECT_THAT(host.TakeLines(), ElementsAre(c.expected));
    }
}
