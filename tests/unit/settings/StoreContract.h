// The same rules over the fake registry and the real one.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Platform.h"
#include "settings/SettingsStore.h"

#include "unit/Utf16.h"
#include "unit/settings/RegistryValues.h"

// Sets a raw value the way the host or another program may have left it. The system looks behind the
// data for a terminator left out of the count, so what stands there is not one.
inline void SetRaw(const std::wstring& section, const std::wstring& name, uint32_t type, std::vector<uint8_t> bytes) {
    std::unique_ptr<platform::RegistryKey> key;
    ASSERT_EQ(0, platform::Current().registry.CreateKey(SettingsStore::kSectionRoot + section, key));
    uint32_t size = static_cast<uint32_t>(bytes.size());
    bytes.insert(bytes.end(), {0xAA, 0xAA});
    ASSERT_EQ(0, key->SetValue(name, type, bytes.data(), size));
}

// Each value read as text (over "default") or as a number (over 0x0BADF00D).
inline void ExpectReadsTakeWhatFitsOverTheDefault(const std::wstring& section) {
    // clang-format off
    struct Case { const char* label; uint32_t type; std::vector<uint8_t> bytes; Stored expected; };
    // clang-format on
    const Case cases[] = {
        {"terminated", platform::kRegSz, Utf16Bytes(L"abc\0"), L"abc"},
        {"no terminator", platform::kRegSz, Utf16Bytes(L"abc"), L"abc"},
        {"exactly 32,768 bytes", platform::kRegSz, Utf16Bytes(std::wstring(16384, L'x')), std::wstring(16384, L'x')},
        {"32,770 bytes", platform::kRegSz, Utf16Bytes(std::wstring(16385, L'x')), L"default"},
        {"integer read as text", platform::kRegDword, {0x41, 0x00, 0x42, 0x00}, L"AB"},
        {"empty", platform::kRegSz, {}, L""},
        {"dword", platform::kRegDword, {0x78, 0x56, 0x34, 0x12}, 0x12345678},
        {"negative", platform::kRegDword, {0xFF, 0xFF, 0xFF, 0xFF}, -1},
        {"long string as a number", platform::kRegSz, Utf16Bytes(L"12345"), 0x0BADF00D},
        {"short string gets its terminator", platform::kRegSz, Utf16Bytes(L"A"), 0x41},
        {"two bytes", platform::kRegBinary, {0x01, 0x02}, 0x0BAD0201},
    };
    SettingsStore store;
    store.SelectSection(section);
    for (const auto& c : cases) {
        SetRaw(section, L"Value", c.type, c.bytes);
        if (std::holds_alternative<int32_t>(c.expected))
            EXPECT_EQ(c.expected, Stored(store.ReadInt(L"Value", 0x0BADF00D))) << c.label;
        else
            EXPECT_EQ(c.expected, Stored(store.ReadString(L"Value", L"default"))) << c.label;
    }
    EXPECT_EQ(L"default", store.ReadString(L"Absent", L"default"));
    EXPECT_EQ(-7, store.ReadInt(L"Absent", -7));
}

// Reading a missing section creates its key; selecting the same section keeps the open key (so it
// keeps failing once the key is deleted behind its back), another spelling reopens it.
inline void ExpectReadingCreatesTheKeyAndOnlyAnotherSpellingReopensIt(const std::wstring& section) {
    platform::Registry& registry = platform::Current().registry;
    const std::wstring path = SettingsStore::kSectionRoot + section;
    SettingsStore store;
    store.SelectSection(section);
    EXPECT_EQ(5, store.ReadInt(L"A", 5));
    std::unique_ptr<platform::RegistryKey> key;
    EXPECT_EQ(0, registry.OpenKey(path, key));
    key.reset();
    store.WriteInt(L"A", 1);
    ASSERT_EQ(0, registry.DeleteKey(path));
    store.SelectSection(section);
    EXPECT_EQ(-1, store.ReadInt(L"A", -1));
    EXPECT_FALSE(store.WriteInt(L"B", 2));
    std::wstring otherSpelling = section;
    for (wchar_t& unit : otherSpelling) unit = static_cast<wchar_t>(std::towlower(unit));
    store.SelectSection(otherSpelling);
    EXPECT_TRUE(store.WriteInt(L"B", 2));
    EXPECT_EQ((NamedValues{{L"B", 2}}), ValuesOf(section));
}
