#include <gtest/gtest.h>

#include "unit/Utf16.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsStore.h"

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

std::vector<uint8_t> GetRaw(const std::wstring& path, const std::wstring& name, uint32_t* type = nullptr) {
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.OpenKey(path, key) != 0) return {};
    uint32_t size = 0;
    if (key->QueryValue(name, type, nullptr, &size) != 0) return {};
    std::vector<uint8_t> bytes(size);
    key->QueryValue(name, type, bytes.data(), &size);
    return bytes;
}

TEST(SettingsStore, StringReadsAndTheirLimits) {
    FakePlatform fake;
    struct Case {
        const char* label;
        uint32_t type;
        std::vector<uint8_t> bytes;
        std::wstring expected;
    };
    const Case cases[] = {
        {"terminated", platform::kRegSz, Utf16Bytes(L"abc\0"), L"abc"},
        {"no terminator", platform::kRegSz, Utf16Bytes(L"abc"), L"abc"},
        {"exactly 32,768 bytes", platform::kRegSz, Utf16Bytes(std::wstring(16384, L'x')), std::wstring(16384, L'x')},
        {"32,770 bytes", platform::kRegSz, Utf16Bytes(std::wstring(16385, L'x')), L"default"},
        {"integer read as text", platform::kRegDword, {0x41, 0x00, 0x42, 0x00}, L"AB"},
        {"empty", platform::kRegSz, {}, L""},
    };
    SettingsStore store;
    store.SelectSection(L"Settings");
    for (const auto& c : cases) {
        SetRaw(kSettings, L"Value", c.type, c.bytes);
        EXPECT_EQ(c.expected, store.ReadString(L"Value", L"default")) << c.label;
    }
    EXPECT_EQ(L"default", store.ReadString(L"Absent", L"default"));
}

TEST(SettingsStore, IntegerReadsTakeFourBytesOverTheDefault) {
    FakePlatform fake;
    struct Case {
        const char* label;
        uint32_t type;
        std::vector<uint8_t> bytes;
        int32_t expected;
    };
    const Case cases[] = {
        {"dword", platform::kRegDword, {0x78, 0x56, 0x34, 0x12}, 0x12345678},
        {"negative", platform::kRegDword, {0xFF, 0xFF, 0xFF, 0xFF}, -1},
        {"long string", platform::kRegSz, Utf16Bytes(L"12345"), 0x0BADF00D},
        {"short string gets its terminator", platform::kRegSz, Utf16Bytes(L"A"), 0x41},
        {"two bytes", platform::kRegBinary, {0x01, 0x02}, 0x0BAD0201},
    };
    SettingsStore store;
    store.SelectSection(L"Settings");
    for (const auto& c : cases) {
        SetRaw(kSettings, L"Number", c.type, c.bytes);
        EXPECT_EQ(c.expected, store.ReadInt(L"Number", 0x0BADF00D)) << c.label;
    }
    EXPECT_EQ(-7, store.ReadInt(L"Absent", -7));
}

TEST(SettingsStore, WritesKeepTheirTypes) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"AppInfo");
    EXPECT_TRUE(store.WriteString(L"Text", L"日本"));
    EXPECT_TRUE(store.WriteInt(L"Number", -2));
    uint32_t type = 0;
    EXPECT_EQ(L"日本", store.ReadString(L"Text", L""));
    GetRaw(L"Software\\Tarnwick\\QOR\\Main001\\AppInfo", L"Text", &type);
    EXPECT_EQ(platform::kRegSz, type);
    EXPECT_EQ((std::vector<uint8_t>{0xFE, 0xFF, 0xFF, 0xFF}),
              GetRaw(L"Software\\Tarnwick\\QOR\\Main001\\AppInfo", L"Number", &type));
    EXPECT_EQ(platform::kRegDword, type);
}

TEST(SettingsStore, ReadingAMissingSectionCreatesItsKey) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"NewSection");
    EXPECT_EQ(5, store.ReadInt(L"X", 5));
    std::unique_ptr<platform::RegistryKey> key;
    EXPECT_EQ(0, fake.registry().OpenKey(L"Software\\Tarnwick\\QOR\\Main001\\NewSection", key));
}

TEST(SettingsStore, SelectingTheSameSectionKeepsTheKeyOtherCaseReopens) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"Settings");
    store.WriteInt(L"A", 1);
    // Deleting the key under the open handle shows whether the handle is reused.
    std::unique_ptr<platform::RegistryKey> key;
    ASSERT_EQ(0, fake.registry().DeleteKey(kSettings));
    store.SelectSection(L"Settings");
    EXPECT_EQ(-1, store.ReadInt(L"A", -1));
    EXPECT_FALSE(store.WriteInt(L"B", 2));
    store.SelectSection(L"settings");
    EXPECT_EQ(L"Software\\Tarnwick\\QOR\\Main001\\settings", store.current_path());
    EXPECT_TRUE(store.WriteInt(L"B", 2));
    EXPECT_EQ(0, fake.registry().OpenKey(kSettings, key));
}

TEST(SettingsStore, FontRoundTripLosesUnderlineAndStrikeOut) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"ViewFont");
    LogFont font;
    font.lfHeight = -15;
    font.lfWidth = 3;
    font.lfEscapement = 900;
    font.lfOrientation = 450;
    font.lfWeight = 700;
    font.lfItalic = 1;
    font.lfUnderline = 1;
    font.lfStrikeOut = 1;
    font.lfCharSet = 128;
    font.lfOutPrecision = 3;
    font.lfClipPrecision = 2;
    font.lfQuality = 5;
    font.lfPitchAndFamily = 49;
    std::wstring face = L"ＭＳ ゴシック";
    std::copy(face.begin(), face.end(), font.lfFaceName);
    store.WriteFont(font);

    LogFont system;
    system.lfHeight = -12;
    system.lfUnderline = 1;
    fake.environment().SetIconTitleFont(system);
    LogFont read;
    store.ReadFont(read);
    EXPECT_EQ(-15, read.lfHeight);
    EXPECT_EQ(3, read.lfWidth);
    EXPECT_EQ(900, read.lfEscapement);
    EXPECT_EQ(450, read.lfOrientation);
    EXPECT_EQ(700, read.lfWeight);
    EXPECT_EQ(1, read.lfItalic);
    EXPECT_EQ(0, read.lfUnderline);
    EXPECT_EQ(0, read.lfStrikeOut);
    EXPECT_EQ(128, read.lfCharSet);
    EXPECT_EQ(3, read.lfOutPrecision);
    EXPECT_EQ(2, read.lfClipPrecision);
    EXPECT_EQ(5, read.lfQuality);
    EXPECT_EQ(49, read.lfPitchAndFamily);
    EXPECT_EQ(face, std::wstring(read.lfFaceName));
    // The twelve values, and nothing for underline or strike-out.
    std::wstring name;
    std::unique_ptr<platform::RegistryKey> key;
    ASSERT_EQ(0, fake.registry().OpenKey(L"Software\\Tarnwick\\QOR\\Main001\\ViewFont", key));
    std::vector<std::wstring> names;
    for (uint32_t i = 0; key->EnumValueName(i, name) == 0; ++i) names.push_back(name);
    const std::vector<std::wstring> expected = {L"Point",         L"Width",   L"Escapement",     L"Orientation",
                                                L"Weight",        L"Italic",  L"CharSet",        L"OutPrecision",
                                                L"ClipPrecision", L"Quality", L"PitchAndFamily", L"FontName"};
    EXPECT_EQ(expected, names);
}

TEST(SettingsStore, FontDefaultsComeFromTheSystemFontAndLongNamesDoNotFit) {
    FakePlatform fake;
    SettingsStore store;
    store.SelectSection(L"Thumb");
    LogFont system;
    system.lfHeight = -12;
    system.lfWeight = 400;
    std::wstring face = L"Tahoma";
    std::copy(face.begin(), face.end(), system.lfFaceName);
    fake.environment().SetIconTitleFont(system);
    LogFont read;
    store.ReadFont(read);
    EXPECT_EQ(-12, read.lfHeight);
    EXPECT_EQ(400, read.lfWeight);
    EXPECT_EQ(face, std::wstring(read.lfFaceName));
    store.WriteString(L"FontName", std::wstring(31, L'f'));
    store.ReadFont(read);
    EXPECT_EQ(std::wstring(31, L'f'), std::wstring(read.lfFaceName));
    store.WriteString(L"FontName", std::wstring(32, L'f'));
    store.ReadFont(read);
    EXPECT_EQ(L"", std::wstring(read.lfFaceName));
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

TEST(SettingsStore, DisplayFactorAndStartingValues) {
    SettingsStore store(144);
    EXPECT_DOUBLE_EQ(1.5, store.DisplayFactor);
    EXPECT_EQ(128, store.BkAlpha);
    EXPECT_EQ(0, store.Alfa);
}

}  // namespace
