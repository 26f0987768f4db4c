#include <gtest/gtest.h>

#include <optional>

#include "services/FieldText.h"

namespace {

TEST(FieldText, ShownValuesReadBackUnchanged) {
    for (int32_t value : {0, -1, 50, INT32_MIN, INT32_MAX})
        EXPECT_EQ(value, fieldtext::ParseInt(fieldtext::ShowInt(value)));
    for (uint32_t value : {0u, 10u, 5000000u, UINT32_MAX})
        EXPECT_EQ(value, fieldtext::ParseUInt(fieldtext::ShowUInt(value)));
    EXPECT_EQ(L"4294967295", fieldtext::ShowUInt(UINT32_MAX));
}

}  // namespace
