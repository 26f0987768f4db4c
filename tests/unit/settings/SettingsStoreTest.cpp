#include <gtest/gtest.h>

#include <cwchar>

#include "platform/fake/FakePlatform.h"
#include "settings/SettingsStore.h"

#include "unit/settings/RegistryValues.h"
#include "unit/settings/StoreContract.h"

namespace {

using platform::fake::FakePlatform;

TEST(SettingsStore, ReadsAndTheOpenKeyAsOverTheRealRegistry) {
    FakePlatform fake;
    ExpectReadsTakeWhatFitsOverTheDefault(L"Settings");
    ExpectReadingCreatesTheKeyAndOnlyAnotherSpellingReopensIt(L"Settings");
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

// Numbers as DWORD, texts as strings; underline and strike-out are never kept.
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

}  // namespace
