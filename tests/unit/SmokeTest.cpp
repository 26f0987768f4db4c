#include <gtest/gtest.h>
TEST(Smoke, Runs) {
    EXPECT_EQ(1, 1);
}
