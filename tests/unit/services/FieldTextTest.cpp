#include <gtest/gtest.h>

#include <optional>

#include "services/FieldText.h"

namespace {

// What a refused field tells the user is tried with real controls on Windows; here is what each field
// accepts.
TEST(FieldText, IntegerFieldsTakeBlanksSignAndDigitsWithinTheirRange) {
    // Text typed into a field and what a signed and an unsigned field make of it (nullopt: refused).
    // clang-format off
    struct { const wchar_t* text; std::optional<int32_t> asSigned; std::optional<uint32_t> asUnsigned; } cases[] = {
        {L"42", 42, 42u}, {L"  \t42\t ", 42, 42u}, {L"+7", 7, 7u}, {L"-7", -7, std::nullopt}, {L"-0", 0, std::nullopt},
        {L"007", 7, 7u}, {L"2147483647", INT32_MAX, 2147483647u}, {L"2147483648", std::nullopt, 2147483648u},
        {L"-2147483648", INT32_MIN, std::nullopt}, {L"-2147483649", std::nullopt, std::nullopt},
        {L"4294967295", std::nullopt, UINT32_MAX}, {L"4294967296", std::nullopt, std::nullopt},
        {L"99999999999999999999999", std::nullopt, std::nullopt}, {L"", std::nullopt, std::nullopt},
        {L"   ", std::nullopt, std::nullopt}, {L"+", std::nullopt, std::nullopt}, {L"- 5", std::nullopt, std::nullopt},
        {L"5 5", std::nullopt, std::nullopt}, {L"12a", std::nullopt, std::nullopt},
        {L"0x10", std::nullopt, std::nullopt},
        {L"1.0", std::nullopt, std::nullopt}, {L"1e3", std::nullopt, std::nullopt},
        {L"\n5", std::nullopt, std::nullopt},           // only spaces and tabs count as blanks
        {L"\x0661\x0662", std::nullopt, std::nullopt},  // digits of other scripts are not taken
        {L"\xFF11", std::nullopt, std::nullopt},        // nor full-width ones
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.asSigned, fieldtext::ParseInt(c.text)) << testing::PrintToString(c.text);
        EXPECT_EQ(c.asUnsigned, fieldtext::ParseUInt(c.text)) << testing::PrintToString(c.text);
    }
}

TEST(FieldText, ShownValuesReadBackUnchanged) {
    for (int32_t value : {0, -1, 50, INT32_MIN, INT32_MAX})
        EXPECT_EQ(value, fieldtext::ParseInt(fieldtext::ShowInt(value)));
    for (uint32_t value : {0u, 10u, 5000000u, UINT32_MAX})
        EXPECT_EQ(value, fieldtext::ParseUInt(fieldtext::ShowUInt(value)));
    EXPECT_EQ(L"4294967295", fieldtext::ShowUInt(UINT32_MAX));
}

}  // namespace
