// The store against the real registry: the limits that only the system decides.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <tuple>
#include <vector>

#include "platform/win32/Win32Platform.h"
#include "settings/SettingsStore.h"

#include "unit/settings/GroupRoundTrip.h"

namespace {

constexpr const wchar_t* kSection = L"OptionStoreTest";
const std::wstring kPath = std::wstring(SettingsStore::kSectionRoot) + kSection;

class SettingsStoreRegistryTest : public testing::Test {
protected:
    void SetUp() override { RegDeleteTreeW(HKEY_CURRENT_USER, kPath.c_str()); }
    void TearDown() override { RegDeleteTreeW(HKEY_CURRENT_USER, kPath.c_str()); }

    // Raw bytes as another program may leave them; an odd byte behind keeps the system from
    // finding a terminator there.
    void SetRaw(const std::wstring& name, DWORD type, std::vector<BYTE> bytes) {
        HKEY key;
        ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_CURRENT_USER, kPath.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                                 nullptr, &key, nullptr));
        DWORD size = static_cast<DWORD>(bytes.size());
        bytes.push_back(0xAA);
        bytes.push_back(0xAA);
        EXPECT_EQ(ERROR_SUCCESS, RegSetValueExW(key, name.c_str(), 0, type, bytes.data(), size));
        RegCloseKey(key);
    }

    static std::vector<BYTE> Text(const std::wstring& text) {
        std::vector<BYTE> bytes;
        for (wchar_t unit : text) {
            bytes.push_back(static_cast<BYTE>(unit));
            bytes.push_back(static_cast<BYTE>(unit >> 8));
        }
        return bytes;
    }

    platform::win32::Win32Platform system_;
};

TEST_F(SettingsStoreRegistryTest, StringLimitsAndTypesAsTheSystemGivesThem) {
    SettingsStore store;
    store.SelectSection(kSection);
    SetRaw(L"Full", REG_SZ, Text(std::wstring(16384, L'x')));
    SetRaw(L"Over", REG_SZ, Text(std::wstring(16385, L'x')));
    SetRaw(L"Bare", REG_SZ, Text(L"no end"));
    SetRaw(L"Number", REG_DWORD, {0x41, 0, 0x42, 0});
    EXPECT_EQ(std::wstring(16384, L'x'), store.ReadString(L"Full", L"default"));
    EXPECT_EQ(L"default", store.ReadString(L"Over", L"default"));
    EXPECT_EQ(L"no end", store.ReadString(L"Bare", L"default"));
    EXPECT_EQ(L"AB", store.ReadString(L"Number", L"default"));
    EXPECT_EQ(L"default", store.ReadString(L"Absent", L"default"));
}

TEST_F(SettingsStoreRegistryTest, IntegerReadsOfTextTakeFourBytesOrTheDefault) {
    SettingsStore store;
    store.SelectSection(kSection);
    SetRaw(L"Long", REG_SZ, Text(L"12345"));
    SetRaw(L"Short", REG_SZ, Text(L"A"));
    SetRaw(L"Dword", REG_DWORD, {0x78, 0x56, 0x34, 0x12});
    EXPECT_EQ(0x0BADF00D, store.ReadInt(L"Long", 0x0BADF00D));
    EXPECT_EQ(0x41, store.ReadInt(L"Short", 0x0BADF00D)) << "the system writes a terminator behind";
    EXPECT_EQ(0x12345678, store.ReadInt(L"Dword", 0));
}

TEST_F(SettingsStoreRegistryTest, ReadingCreatesTheSectionAndOtherCaseReopens) {
    SettingsStore store;
    store.SelectSection(kSection);
    EXPECT_EQ(3, store.ReadInt(L"X", 3));
    HKEY key;
    ASSERT_EQ(ERROR_SUCCESS, RegOpenKeyExW(HKEY_CURRENT_USER, kPath.c_str(), 0, KEY_READ, &key));
    RegCloseKey(key);
    // With the open key deleted behind its back, the same section keeps failing and another spelling
    // of it opens a new key.
    ASSERT_EQ(ERROR_SUCCESS, RegDeleteTreeW(HKEY_CURRENT_USER, kPath.c_str()));
    store.SelectSection(kSection);
    EXPECT_FALSE(store.WriteInt(L"Y", 1));
    store.SelectSection(L"optionstoretest");
    EXPECT_TRUE(store.WriteInt(L"Y", 1));
    store.SelectSection(kSection);
    EXPECT_EQ(1, store.ReadInt(L"y", 0));
}

// An empty section gives the system's icon title font; a written font reads back without underline
// and strike-out.
TEST_F(SettingsStoreRegistryTest, FontsReadBackAsTheSystemAndTheWriterGaveThem) {
    LOGFONTW system = {};
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof system, &system, 0));
    SettingsStore store;
    store.SelectSection(kSection);
    LogFont read;
    store.ReadFont(read);
    EXPECT_EQ((std::tuple{system.lfHeight, system.lfWeight, system.lfCharSet, std::wstring(system.lfFaceName)}),
              (std::tuple{read.lfHeight, read.lfWeight, read.lfCharSet, std::wstring(read.lfFaceName)}));

    LogFont font;
    font.lfHeight = -13;
    font.lfWeight = 700;
    font.lfItalic = font.lfUnderline = font.lfStrikeOut = 1;
    font.lfCharSet = 128;
    std::wstring face = L"メイリオ";
    std::copy(face.begin(), face.end(), font.lfFaceName);
    store.WriteFont(font);
    store.ReadFont(read);
    EXPECT_EQ((std::tuple{-13, 700, 1, 0, 0, 128, face}),
              (std::tuple{int(read.lfHeight), int(read.lfWeight), int(read.lfItalic), int(read.lfUnderline),
                          int(read.lfStrikeOut), int(read.lfCharSet), std::wstring(read.lfFaceName)}));
}

}  // namespace

// Every group over the real registry: what the host stored survives a page's Load and Apply.
TEST_F(SettingsStoreRegistryTest, EveryGroupWritesBackWhatTheHostStored) {
    ExpectEveryGroupWritesBackWhatTheHostStored();
    ClearSections();
}
