#include <gtest/gtest.h>
#include <windows.h>

#include "platform/fake/FakeEnvironment.h"
#include "platform/win32/Win32Environment.h"

using platform::win32::Win32Environment;

// The fakes take Windows-1252 for the thread's ANSI code page; where the system uses it too, both
// must read every byte alike and write every character they read back to its byte.
TEST(Win32Environment, AnsiCodePageAsTheFakesHaveIt) {
    if (GetACP() != 1252) GTEST_SKIP() << "code page " << GetACP();
    Win32Environment environment;
    platform::fake::FakeEnvironment fake;
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    const std::wstring text = environment.FromAnsi(bytes);
    EXPECT_EQ(text, fake.FromAnsi(bytes));
    EXPECT_EQ(bytes, environment.ToAnsi(text));
    EXPECT_EQ(bytes, fake.ToAnsi(text));
    EXPECT_EQ("?", environment.ToAnsi(L"\u4e00")) << "the default character";
    EXPECT_EQ("", environment.ToAnsi(L""));
}
