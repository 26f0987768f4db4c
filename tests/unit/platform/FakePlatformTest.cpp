#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"

namespace {

TEST(FakeEnvironment, VariableNamesIgnoreCase) {
    platform::fake::FakePlatform fakes;
    auto& environment = fakes.environment();
    environment.SetVariable(L"QOR_ExCommand", L"1,0");
    environment.SetVariable(L"qor_excommand", L"2,0");
    environment.SetVariable(L"Empty", L"");

    std::wstring value = L"poison";
    EXPECT_TRUE(platform::Current().environment.GetVariable(L"QOR_EXCOMMAND", value));
    EXPECT_EQ(L"2,0", value);
    EXPECT_TRUE(environment.GetVariable(L"EMPTY", value));
    EXPECT_EQ(L"", value);
    environment.RemoveVariable(L"QOR_EXCOMMAND");
    EXPECT_FALSE(environment.GetVariable(L"QOR_ExCommand", value));
}

}  // namespace
