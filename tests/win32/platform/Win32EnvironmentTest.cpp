#include <gtest/gtest.h>
#include <windows.h>

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
