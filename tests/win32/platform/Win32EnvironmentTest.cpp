#include <gtest/gtest.h>
#include <windows.h>

#include "platform/fake/FakeEnvironment.h"
#include "platform/win32/Win32Environment.h"

using platform::win32::Win32Environment;

TEST(Win32Environment, VariablesIgnoreCaseAndTellEmptyFromAbsent) {
    Win32Environment environment;
    SetEnvironmentVariableW(L"OPTION_TEST_VAR", L"value");
    SetEnvironmentVariableW(L"OPTION_TEST_EMPTY", L"");
    SetEnvironmentVariableW(L"OPTION_TEST_ABSENT", nullptr);

    std::wstring value = L"poison";
    EXPECT_TRUE(environment.GetVariable(L"option_test_var", value));
    EXPECT_EQ(L"value", value);
    EXPECT_TRUE(environment.GetVariable(L"OPTION_TEST_EMPTY", value));
    EXPECT_EQ(L"", value);
    EXPECT_FALSE(environment.GetVariable(L"OPTION_TEST_ABSENT", value));

    std::wstring longValue(5000, L'x');
    SetEnvironmentVariableW(L"OPTION_TEST_LONG", longValue.c_str());
    EXPECT_TRUE(environment.GetVariable(L"OPTION_TEST_LONG", value));
    EXPECT_EQ(longValue, value);
}

TEST(Win32Environment, KnowsTheProgram) {
    Win32Environment environment;
    std::wstring module = environment.ModuleFileName();
    EXPECT_NE(std::wstring::npos, module.find(L"win32_tests.exe")) << module.size();
    EXPECT_EQ(L"win32_tests", platform::win32::ProgramName());
}

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
