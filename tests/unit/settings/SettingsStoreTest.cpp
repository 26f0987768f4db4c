#include <gtest/gtest.h>

#include <cwchar>

#include "platform/fake/FakePlatform.h"
#include "settings/SettingsStore.h"

#include "unit/Utf16.h"
#include "unit/settings/RegistryValues.h"

namespace {

using platform::fake::FakePlatform;

constexpr const wchar_t* kSettings = L"Software\\Tarnwick\\QOR\\Main001\\Settings";

// Sets a raw value the way the host or another program may have left it. The system looks behind the
// data for a terminator left out of the count, so what stands there is not one.
void SetRaw(const std::wstring& path, const std::wstring& name, uint32_t type, std::vector<uint8_t> bytes) {
    std::unique_ptr<platform::RegistryKey> key;
    ASSERT_EQ(0, platform::Current().registry.CreateKey(path, key));
    uint32_t size = static_cast<uint32_t>(bytes.size());
    bytes.insert(bytes.end(), {0xAA, 0xAA});
    ASSERT_EQ(0, key->SetValue(name, type, bytes.data(), size));
}

// What the host may have left under a name, read as text (over "default") or as a number (over
// 0x0BADF00D).
TEST(SettingsStore, ReadsTakeWhatFitsOverTheDefault) {
    FakePlatform fake;
    struct Case {
        const char* label;
        uint32_t type;
        std::vector<uint8_t> bytes;
        Stored expected;
    };
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
    store.SelectSection(L"Settings");
    for (const auto& c : cases) {
        SetRaw(kSettings, L"Value", c.type, c.bytes);
        if (std::holds_alternative<int32_t>(c.expected))
            EXPECT_EQ(c.expected, Stored(store.ReadInt(L"Value", 0x0BADF00D))) << c.label;
        else
            EXPECT_EQ(c.expected, Stored(store.ReadString(L"Value", L"default"))) << c.label;
    }
    EXPECT_EQ(L"default", store.ReadString(L"Absent", L"default"));
    EXPECT_EQ(-7, store.ReadInt(L"Absent", -7));
}

// Reading a missing section creates its key; selecting the same section keeps the open key, another
// spelling reopens it.
TEST(SettingsStore, ReadingCreatesTheKeyAndOnlyAnotherSpellingReopensIt) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"Settings");
    EXPECT_EQ(5, store.ReadInt(L"A", 5));
    std::unique_ptr<platform::RegistryKey> key;
    EXPECT_EQ(0, fake.registry().OpenKey(kSettings, key));
    store.WriteInt(L"A", 1);
    // Deleting the key under the open handle shows whether the handle is reused.
    ASSERT_EQ(0, fake.registry().DeleteKey(kSettings));
    store.SelectSection(L"Settings");
    EXPECT_EQ(-1, store.ReadInt(L"A", -1));
    EXPECT_FALSE(store.WriteInt(L"B", 2));
    store.SelectSection(L"settings");
    EXPECT_TRUE(store.WriteInt(L"B", 2));
    EXPECT_EQ((NamedValues{{L"B", 2}}), ValuesOf(L"Settings"));
}

// The host reads numbers as DWORD and texts as strings; a font is twelve values, and underline and
// strike-out are never kept.
TEST(SettingsStore, WritesKeepTheirTypesAndAFontIsTwelveValues) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"AppInfo");
    EXPECT_TRUE(store.WriteString(L"Text", L"日本"));
    EXPECT_TRUE(store.WriteInt(L"Number", -2));
    EXPECT_EQ((NamedValues{{L"Text", L"日本"}, {L"Number", -2}}), ValuesOf(L"AppInfo"));

    // clang-format off
    const NamedValues font = {
        {L"Point", -15}, {L"Width", 3}, {L"Escapement", 900}, {L"Orientation", 450}, {L"Weight", 700},
        {L"Italic", 1}, {L"CharSet", 128}, {L"OutPrecision", 3}, {L"ClipPrecision", 2}, {L"Quality", 5},
        {L"PitchAndFamily", 49}, {L"FontName", L"ＭＳ ゴシック"}};
    // clang-format on
    for (const auto& [name, value] : font) StoreValue(L"ViewFont", name, value);
    LogFont system;
    system.lfUnderline = system.lfStrikeOut = 1;
    fake.environment().SetIconTitleFont(system);
    LogFont read;
    store.SelectSection(L"ViewFont");
    store.ReadFont(read);
    EXPECT_EQ(0, read.lfUnderline + read.lfStrikeOut);
    read.lfUnderline = read.lfStrikeOut = 1;
    store.SelectSection(L"Copy");
    store.WriteFont(read);
    EXPECT_EQ(font, ValuesOf(L"Copy"));
}

TEST(SettingsStore, FontDefaultsComeFromTheSystemFontAndLongNamesDoNotFit) {
    FakePlatform fake;
    LogFont system;
    system.lfHeight = -12;
    system.lfWeight = 400;
    std::wcscpy(system.lfFaceName, L"Tahoma");
    fake.environment().SetIconTitleFont(system);
    SettingsStore store;
    store.SelectSection(L"Thumb");
    LogFont read;
    store.ReadFont(read);
    EXPECT_EQ(-12, read.lfHeight);
    EXPECT_EQ(400, read.lfWeight);
    EXPECT_EQ(L"Tahoma", std::wstring(read.lfFaceName));
    for (size_t length : {31, 32}) {
        store.WriteString(L"FontName", std::wstring(length, L'f'));
        store.ReadFont(read);
        EXPECT_EQ(length < 32 ? std::wstring(length, L'f') : L"", std::wstring(read.lfFaceName)) << length;
    }
}

TEST(SettingsStore, DirectHelpersUseTheirOwnKeys) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"Settings");
    EXPECT_TRUE(DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US"));
    EXPECT_TRUE(DirectWriteInt(kDirectSettingsPath, L"UserDirMode", 2));
    EXPECT_EQ(L".en-US", DirectReadString(kDirectSettingsPath, L"nls", L".ja-JP"));
    EXPECT_EQ(2, DirectReadInt(kDirectSettingsPath, L"UserDirMode", 0));
    // The same key as section "Settings", whose names ignore case.
    EXPECT_EQ(L".en-US", store.ReadString(L"NLS", L""));
    EXPECT_EQ(L".ja-JP", DirectReadString(L"Software\\Other", L"NLS", L".ja-JP"));
}

TEST(SettingsStore, ARegistryThatRefusesWritesLosesThemSilently) {
    FakePlatform fake;
    fake.registry().RefuseWrites(true);
    SettingsStore store;
    store.SelectSection(L"AppInfo");
    EXPECT_FALSE(store.WriteInt(L"A", 1));
    EXPECT_EQ(9, store.ReadInt(L"A", 9));
    EXPECT_EQ(L"d", store.ReadString(L"S", L"d"));
    EXPECT_FALSE(DirectWriteString(kDirectSettingsPath, L"NLS", L"x"));
    EXPECT_EQ(L".ja-JP", DirectReadString(kDirectSettingsPath, L"NLS", L".ja-JP"));
}

}  // namespace
