// A test that changes the user's registry must leave it as it found it.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/Registry.h"

namespace reg = e2e::registry;

namespace {

const std::wstring kRoot = L"Software\\OptionE2ETest";

reg::Value Bytes(DWORD type, std::initializer_list<BYTE> bytes) {
    return reg::Value{type, bytes};
}

bool Same(const std::optional<reg::Value>& a, const reg::Value& b) {
    return a && a->type == b.type && a->data == b.data;
}

}  // namespace

TEST(Registry, ScopedKeyPutsBackEveryValueAndSubkey) {
    reg::DeleteKey(kRoot);
    struct Entry {
        std::wstring key;
        std::wstring name;
        reg::Value value;
    };
    const Entry entries[] = {
        {kRoot, L"Number", Bytes(REG_DWORD, {1, 2, 3, 4})},
        {kRoot, L"", Bytes(REG_SZ, {'d', 0, 'e', 0, 'f', 0, 0, 0})},
        // Strings written without their terminator must come back without it.
        {kRoot, L"Unterminated", Bytes(REG_SZ, {'a', 0, 'b', 0})},
        {kRoot, L"Binary", Bytes(REG_BINARY, {0, 255, 0})},
        {kRoot + L"\\Child", L"Text", Bytes(REG_SZ, {'x', 0, 0, 0})},
        {kRoot + L"\\Child\\Grandchild", L"Zero", Bytes(REG_DWORD, {0, 0, 0, 0})},
    };
    for (const Entry& e : entries) reg::Write(e.key, e.name, e.value);
    reg::WriteDword(kRoot + L"\\Empty\\Deeper", L"Gone", 1);
    reg::DeleteValue(kRoot + L"\\Empty\\Deeper", L"Gone");

    {
        reg::ScopedKey saved(kRoot);
        reg::DeleteKey(kRoot + L"\\Child");
        reg::WriteDword(kRoot, L"Number", 99);
        reg::WriteString(kRoot, L"Added", L"new");
        reg::WriteDword(kRoot + L"\\AddedKey", L"New", 1);
    }

    for (const Entry& e : entries) {
        SCOPED_TRACE(std::string(e.name.begin(), e.name.end()));
        EXPECT_TRUE(Same(reg::Read(e.key, e.name), e.value));
    }
    EXPECT_FALSE(reg::Read(kRoot, L"Added"));
    EXPECT_FALSE(reg::KeyExists(kRoot + L"\\AddedKey"));
    EXPECT_TRUE(reg::KeyExists(kRoot + L"\\Empty\\Deeper"));
    reg::DeleteKey(kRoot);
}

TEST(Registry, ReadsTellTypesAndAbsenceApartAndANewKeyIsRemovedAgain) {
    reg::DeleteKey(kRoot);
    {
        reg::ScopedKey saved(kRoot);
        reg::WriteDword(kRoot, L"Number", 0xFFFFFFFF);
        reg::WriteString(kRoot + L"\\Sub", L"Text", L"設定");
        reg::Write(kRoot, L"Unterminated", Bytes(REG_SZ, {'o', 0, 'k', 0}));

        EXPECT_EQ(0xFFFFFFFFu, reg::ReadDword(kRoot, L"Number"));
        EXPECT_EQ(L"設定", reg::ReadString(kRoot + L"\\Sub", L"Text"));
        EXPECT_EQ(L"ok", reg::ReadString(kRoot, L"Unterminated"));
        EXPECT_EQ(std::nullopt, reg::ReadDword(kRoot + L"\\Sub", L"Text"));
        EXPECT_EQ(std::nullopt, reg::ReadString(kRoot, L"Number"));
        EXPECT_EQ(std::nullopt, reg::ReadString(kRoot + L"\\MissingKey", L"Text"));
    }
    EXPECT_FALSE(reg::KeyExists(kRoot));
}
