// The system's code pages and pictures behind the skin pages, on the sample installation's files.
#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

#include "pages/SkinReadme.h"
#include "platform/win32/Win32CodePages.h"
#include "platform/win32/Win32Images.h"
#include "unit/Utf16.h"

namespace {

std::wstring Sample(const char* path) {
    const std::string full = std::string(OPTION_SOURCE_DIR) + "/sample/" + path;
    return std::wstring(full.begin(), full.end());
}

// A readme's units as the page reads them.
std::wstring ReadmeUnits(const char* folder) {
    std::ifstream file(std::string(OPTION_SOURCE_DIR) + "/sample/" + folder + "/Readme.txt", std::ios::binary);
    return RawUnits(std::vector<uint8_t>(std::istreambuf_iterator<char>(file), {}));
}

class Com : public testing::Test {
protected:
    void SetUp() override { CoInitialize(nullptr); }
    void TearDown() override { CoUninitialize(); }
};

TEST_F(Com, ReadmesAreConvertedFromTheirCodePages) {
    platform::win32::Win32CodePages codePages;
    // Windows tells Shift-JIS by itself; Wine's multi-language object has no detection at all, so
    // there the page shows the units as read whenever its own rules cannot decide.
    const bool detects = !GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
    const std::vector<uint8_t> sakura = Utf16Bytes(ReadmeUnits("img/Sakura"));
    EXPECT_EQ(detects ? std::optional<uint32_t>(kCodePageShiftJis) : std::nullopt,
              codePages.DetectInputCodepage(sakura));
    const std::optional<std::wstring> text = codePages.ConvertToUnicode(kCodePageShiftJis, sakura, sakura.size() * 4);
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->starts_with(L"さくら色のアイコンスキン\r\n")) << testing::PrintToString(*text);
    // clang-format off
    struct Case { const char* folder; const wchar_t* start; };
    const Case cases[] = {
        {"img/Sakura", L"さくら色"}, {"img/Mint", L"ミント"}, {"img/Default", L"\xFEFF標準の"},
        {"StatusAnime/Leaves", L"落ち葉"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const std::wstring shown = DecodeReadme(ReadmeUnits(c.folder), codePages);
        EXPECT_TRUE(shown.starts_with(c.start)) << c.folder << ": " << testing::PrintToString(shown);
    }
    // Text that neither marks nor scores tell apart is the system's to guess.
    const std::wstring plain = L"\x6552\x6461\x6D20\x2165";  // "Read me!" read two bytes a unit
    EXPECT_EQ(detects ? L"Read me!" : plain, DecodeReadme(plain, codePages));
}

TEST_F(Com, PicturesKeepTheirAlphaAndStripsCountTheirFrames) {
    platform::win32::Win32Images images;
    // clang-format off
    struct Case { const char* file; int width, height, bits; bool alpha; };
    const Case cases[] = {
        {"Background/leaf.png", 48, 40, 32, true},
        {"img/Sakura/img.bmp", 64, 16, 24, false},
        {"Background/tiles.bmp", 24, 16, 8, false},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        std::unique_ptr<platform::Picture> picture = images.Load(Sample(c.file));
        ASSERT_NE(nullptr, picture);
        EXPECT_EQ(std::tuple(c.width, c.height, c.bits, c.alpha, true),
                  std::tuple(picture->width(), picture->height(), picture->bitsPerPixel(), picture->hasAlpha(),
                             picture->bitmap() != 0));
    }
    EXPECT_EQ(nullptr, images.Load(Sample("img/Sakura/Readme.txt")));
    EXPECT_EQ(nullptr, images.Load(Sample("img/None.png")));
    EXPECT_EQ((std::vector<int>{4, 3, 0}),
              (std::vector<int>{images.StripFrameCount(Sample("img/Sakura/img.bmp")),
                                images.StripFrameCount(Sample("StatusAnime/Leaves/img.bmp")),
                                images.StripFrameCount(Sample("img/None/img.bmp"))}));
}

}  // namespace
