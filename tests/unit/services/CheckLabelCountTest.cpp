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
    EXPECT_EQ(
        (std::vector<platform::fake::ShownMessage>{{L"String of 4 is required ID:1401, but it has become 11", 0}}),
        fake.prompts().shown());
}

}  // namespace
