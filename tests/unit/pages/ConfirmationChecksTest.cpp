#include <gtest/gtest.h>

#include "pages/ConfirmationChecks.h"

namespace {

ConfirmationChecks Rows(std::initializer_list<int> on) {
    ConfirmationChecks checks{};
    for (int row : on) checks[row] = true;
    return checks;
}

TEST(ConfirmationChecks, RowsFollowTheLowFifteenBits) {
    EXPECT_EQ(Rows({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}), ChecksOfMessage(-1));
    EXPECT_EQ(Rows({}), ChecksOfMessage(0x8000));
    EXPECT_EQ(Rows({0, 14}), ChecksOfMessage(0x4001));
    EXPECT_EQ(Rows({2, 8, 9, 10, 14}), AdvancedConfirmationChecks()) << "the advanced preset asks outside its mask";
}

TEST(ConfirmationChecks, SavingKeepsTheHigherBits) {
    // clang-format off
    struct Case { int32_t stored; ConfirmationChecks checks; int32_t saved; };
    const Case cases[] = {
        {-1, Rows({}), static_cast<int32_t>(0xFFFF8000)}, {0, Rows({0, 14}), 0x4001},
        {0x12340000, Rows({1}), 0x12340002}, {0x7FFF, Rows({2, 8, 9, 10, 14}), 0x4704},
    };
    // clang-format on
    for (const auto& c : cases) EXPECT_EQ(c.saved, MessageWithChecks(c.stored, c.checks)) << c.stored;
}

}  // namespace
