#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"
#include "services/CheckLabelCount.h"
#include "services/Tokenizer.h"

namespace {

TEST(CheckLabelCount, AWrongCountIsToldWithTheNumbersInTheirOldOrder) {
    platform::fake::FakePlatform fake;
    std::vector<std::wstring> parts;
    Tokenize(parts, L"外観/全体//表示", L'/', false, true);
    EXPECT_EQ(1, CheckLabelCount(4, parts, 1401));
    EXPECT_TRUE(fake.prompts().shown().empty());
    EXPECT_EQ(0, CheckLabelCount(11, parts, 1401));
    ASSERT_EQ(1u, fake.prompts().shown().size());
    EXPECT_EQ(L"String of 4 is required ID:1401, but it has become 11", fake.prompts().shown()[0].text);
    EXPECT_EQ(0u, fake.prompts().shown()[0].style);
}

}  // namespace
