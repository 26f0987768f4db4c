#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "pages/SkinFolders.h"
#include "pages/SkinReadme.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsGroups.h"
#include "unit/Utf16.h"

namespace {

using Bytes = std::vector<uint8_t>;

// "日本語" in each encoding, and a line of plain ASCII.
const Bytes kShiftJis = {0x93, 0xFA, 0x96, 0x7B, 0x8C, 0xEA};
const Bytes kUtf8 = {0xE6, 0x97, 0xA5, 0xE6, 0x9C, 0xAC, 0xE8, 0xAA, 0x9E};
const Bytes kEuc = {0xC6, 0xFC, 0xCB, 0xDC, 0xB8, 0xEC};

TEST(SkinReadme, CodePageFromMarksEscapesAndScores) {
    // clang-format off
    struct Case { const char* what; Bytes bytes; uint32_t codePage; };
    const Case cases[] = {
        {"UTF-16 big-endian mark", {0xFE, 0xFF, 0x30, 0xC6}, kCodePageUtf16BigEndian},
        {"UTF-16 mark", {0xFF, 0xFE, 0xC6, 0x30}, kCodePageUtf16},
        {"UTF-16 mark on two bytes", {0xFF, 0xFE}, kCodePageUtf16},
        {"UTF-32 mark", {0xFF, 0xFE, 0x00, 0x00, 0x41, 0x00, 0x00, 0x00}, kCodePageUtf32},
        {"UTF-8 mark", {0xEF, 0xBB, 0xBF, 0x41}, kCodePageUtf8},
        {"UTF-32 big-endian mark", {0x00, 0x00, 0xFE, 0xFF}, kCodePageUtf32BigEndian},
        {"a control byte hides the scores", {0x93, 0xFA, 0x96, 0x7B, 0x05}, kCodePageUndecided},
        {"a DEL byte too", {0x93, 0xFA, 0x7F}, kCodePageUndecided},
        {"plain ASCII", {'R', 'e', 'a', 'd', ' ', 'm', 'e'}, kCodePageUndecided},
        {"ISO-2022-JP kanji in", {'a', 0x1B, '$', 'B', 0x46, 0x7C, 0x1B, '(', 'B'}, kCodePageIso2022Jp},
        {"ISO-2022-JP 1990", {0x1B, '&', '@', 0x1B, '$', 'B', 0x21, 0x21}, kCodePageIso2022Jp},
        {"JIS X 0212", {0x1B, '$', '(', 'D'}, kCodePageIso2022Jp},
        {"an escape of nothing known", {0x1B, '[', '0', 'm'}, kCodePageUndecided},
        {"Shift-JIS", kShiftJis, kCodePageShiftJis},
        {"UTF-8", kUtf8, kCodePageUtf8},
        {"EUC-JP", kEuc, kCodePageEucJp},
        {"EUC-JP three-byte form", {0x8F, 0xB0, 0xA1, 0x8F, 0xB0, 0xA1}, kCodePageEucJp},
        {"Shift-JIS ties UTF-8", {0x81, 0x40, 0xC3, 0x80}, kCodePageUndecided},
        {"a lead byte last counts for nothing", {'a', 0x93}, kCodePageUndecided},
        {"nothing at all", {}, kCodePageUndecided},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(c.codePage, DetectCodePage(c.bytes));
    }
}

// What the page shows: the units as read, or what the system made of their bytes.
TEST(SkinReadme, TextIsConvertedUnlessItIsUtf16) {
    const auto widened = [](const Bytes& bytes) { return std::wstring(bytes.begin(), bytes.end()); };
    // clang-format off
    struct Case {
        const char* what; Bytes file; std::optional<uint32_t> guess; bool refused;
        std::wstring text; std::vector<uint32_t> conversions; int guesses;
    };
    const Case cases[] = {
        {"UTF-16 is kept with its mark", Utf16Bytes(L"スキン", true), 932, false,
         L"\xFEFFスキン", {}, 0},
        {"Shift-JIS", kShiftJis, std::nullopt, false, widened(kShiftJis), {932}, 0},
        {"a tie goes to the system", {0x81, 0x40, 0xC3, 0x80}, 65001, false,
         widened({0x81, 0x40, 0xC3, 0x80}), {65001}, 1},
        {"the system guesses UTF-16", {'a', 'b'}, 1200, false, L"\x6261", {}, 1},
        {"no guess leaves the units", {'a', 'b', 'c', 'd'}, std::nullopt, false, L"\x6261\x6463", {}, 1},
        {"a refused conversion too", {0xE6, 0x97, 0xA5, 0xE6, 0x9C, 0xAC}, std::nullopt, true,
         Utf16Text({0xE6, 0x97, 0xA5, 0xE6, 0x9C, 0xAC}), {65001}, 0},
        {"an empty file", {}, 932, false, L"", {}, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        platform::fake::FakePlatform fake;
        fake.codePages().Guess(c.guess);
        if (c.refused) fake.codePages().Refuse(65001);
        fake.files().AddFile(L"C:\\Qor\\img\\Blue\\Readme.txt", c.file);
        EXPECT_EQ(c.text, ReadSkinReadme(L"C:\\Qor\\img\\Blue\\"));
        EXPECT_EQ(c.conversions, fake.codePages().conversions());
        EXPECT_EQ(c.guesses, fake.codePages().guesses());
    }
    platform::fake::FakePlatform fake;
    EXPECT_EQ(L"", ReadSkinReadme(L"C:\\Qor\\img\\None\\"));
}

// The reader of the file works line by line in 16-bit units: a zero unit ends only its own line.
TEST(SkinReadme, RawUnitsAreTakenLineByLine) {
    // clang-format off
    struct Case { Bytes file; std::wstring units; };
    const Case cases[] = {
        {{'a', 'b', 'c'}, L"\x6261"},  // the odd byte is lost
        {{'a', 0, 0, 0, 'b', 0, '\n', 0, 'c', 0}, L"ac"},  // the rest of the line goes, its end too
        {{'a', 0, '\n', 0, 0, 0, 'x', 0, '\n', 0, 'd', 0}, L"a\nd"},
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.units, RawUnits(c.file));
}

// The folders of a root in the disk's order, and what the background's modes make of the numbers.
TEST(SkinFolders, FoldersAndBackgroundModes) {
    platform::fake::FakePlatform fake;
    fake.files().AddDirectory(L"C:\\Qor\\img\\Default");
    fake.files().AddDirectory(L"C:\\Qor\\img\\Blue");
    fake.files().AddFile(L"C:\\Qor\\img\\notes.txt", Bytes{});
    std::vector<std::wstring> names = ListSkinFolders(L"C:\\Qor\\img\\");
    std::sort(names.begin(), names.end());
    EXPECT_EQ((std::vector<std::wstring>{L"Blue", L"Default"}), names);
    EXPECT_TRUE(ListSkinFolders(L"C:\\Qor\\StatusImg\\").empty());
    // clang-format off
    struct Case { int32_t mode; bool positioned; std::wstring unit; uint32_t x, y; bool fits; };
    const Case cases[] = {
        {0, true, L"0～100%", 100, 0, true}, {0, true, L"0～100%", 500, 300, false},
        {1, true, L"0～100%", 50, 101, false}, {2, false, L"", 500, 300, true}, {3, false, L"", 0, 0, true},
        {4, true, L"0～65535Pix", 500, 300, true}, {5, true, L"0～65535Pix", 65535, 65535, true},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.mode);
        EXPECT_EQ(c.positioned, RuleOfBackgroundMode(c.mode).positioned);
        EXPECT_EQ(c.unit, RuleOfBackgroundMode(c.mode).unit);
        EXPECT_EQ(c.fits, BackgroundPositionFits(c.mode, c.x, c.y));
    }
}

// The background by its mode, the strips from the program's directory, no animation for "Default".
TEST(SkinFolders, LoadingTheGroupsLoadsTheirPictures) {
    // clang-format off
    struct Case { int32_t mode; std::wstring anime; bool picture; int thumbnails; int animeFrames; };
    const Case cases[] = {
        {0, L"Default", false, 0, 0}, {2, L"", true, 0, 0}, {3, L"Cat", true, 0, 4},
        {4, L"Cat", true, 1, 4}, {6, L"Dog", false, 0, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.mode);
        platform::fake::FakePlatform fake;
        fake.environment().SetModuleFileName(L"C:\\Qor\\Command\\Option\\Option.exe");
        fake.images().AddPicture(L"C:\\Pictures\\sky.png", {640, 480, 32, true});
        fake.images().AddStrip(L"C:\\Qor\\Command\\Option\\StatusImg\\Default\\img.bmp", 8);
        fake.images().AddStrip(L"C:\\Qor\\Command\\Option\\StatusAnime\\Cat\\img.bmp", 4);
        fake.images().AddStrip(L"C:\\Qor\\Command\\Option\\StatusAnime\\Default\\img.bmp", 2);
        SettingsStore store;
        store.SelectSection(L"Settings");
        store.WriteInt(L"BkMode", c.mode);
        store.WriteString(L"BkImgName", L" C:\\Pictures\\sky.png ");
        store.WriteString(L"StatusAnimeSkin", c.anime);
        LoadGroup(store, SettingsGroup::Skin);
        LoadGroup(store, SettingsGroup::StatusAnime);
        EXPECT_EQ(std::tuple(c.picture, c.thumbnails, 8, c.animeFrames, size_t{3}),
                  std::tuple(store.BkImage != nullptr, static_cast<int>(fake.images().thumbnails().size()),
                             store.PrgImageCount, store.StatusAnimeImageCount, store.StatusAnimeSprites.size()));
    }
}

}  // namespace
