// The store against the real registry: the limits that only the system decides.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <tuple>

#include "platform/win32/Win32Platform.h"
#include "settings/SettingsStore.h"

#include "unit/settings/GroupRoundTrip.h"
#include "unit/settings/StoreContract.h"

namespace {

constexpr const wchar_t* kSection = L"OptionStoreTest";
const std::wstring kPath = std::wstring(SettingsStore::kSectionRoot) + kSection;

class SettingsStoreRegistryTest : public testing::Test {
protected:
    void SetUp() override { RegDeleteTreeW(HKEY_CURRENT_USER, kPath.c_str()); }
    void TearDown() override { RegDeleteTreeW(HKEY_CURRENT_USER, kPath.c_str()); }

    platform::win32::Win32Platform system_;
};

// The rules the fake registry keeps, as the system gives them.
TEST_F(SettingsStoreRegistryTest, ReadsAndTheOpenKeyAsTheFakeHasThem) {
    ExpectReadsTakeWhatFitsOverTheDefault(kSection);
    ExpectReadingCreatesTheKeyAndOnlyAnotherSpellingReopensIt(kSection);
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

// Every group over the real registry: what the host stored survives a page's Load and Apply.
TEST_F(SettingsStoreRegistryTest, EveryGroupWritesBackWhatTheHostStored) {
    ExpectEveryGroupWritesBackWhatTheHostStored();
    ClearSections();
}

}  // namespace
