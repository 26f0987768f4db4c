#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "pages/ListViewChoices.h"

namespace {

// Rounded down to a step and saved as it; a size the list lacks shows no item and stays as stored.
TEST(ListViewChoices, ThumbnailSizesShowAsTheirStep) {
    // clang-format off
    struct Case { int32_t stored; std::optional<int> item; int32_t saved; };
    const Case cases[] = {
        {16, 0, 16}, {32, 1, 32}, {40, 1, 32}, {47, 1, 32}, {128, 7, 128}, {400, 24, 400}, {415, 24, 400},
        {15, std::nullopt, 15}, {0, std::nullopt, 0}, {-16, std::nullopt, -16}, {416, std::nullopt, 416},
    };
    // clang-format on
    for (const Case& c : cases) {
        const std::optional<int> item = ThumbSizeItem(c.stored);
        EXPECT_EQ(c.item, item) << c.stored;
        EXPECT_EQ(c.saved, item ? ThumbSizeOfItem(*item) : c.stored) << c.stored;
    }
}

TEST(ListViewChoices, DigitsAsNumbersAreDroppedOnlyWhereTheSystemLacksThem) {
    // clang-format off
    struct Case { uint32_t ticked; int32_t version; uint32_t stored; };
    const Case cases[] = {
        {0x3103C, 1000, 0x3103C}, {0x3103C, 601, 0x3103C}, {0x3103C, 600, 0x31034}, {0x3103C, 501, 0x31034},
        {0x8, 502, 0x8}, {0x8, 600, 0}, {0x31034, 600, 0x31034},
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.stored, CustomSortFlagsFor(c.ticked, c.version)) << c.version;
}

// One trailing separator goes, then the blanks; rows are stored trimmed up to the first empty one.
TEST(ListViewChoices, WatchExclusionsAsTypedAndAsStored) {
    // clang-format off
    const std::pair<std::wstring, std::wstring> typed[] = {
        {L"C:\\Work\\", L"C:\\Work"}, {L"C:\\\\", L"C:\\"}, {L"D:/Temp/", L"D:/Temp"}, {L" E:\\x\\ ", L"E:\\x\\"},
        {L"\t*.tmp ", L"*.tmp"}, {L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
        {L"\\", L""}, {L"  ", L""}, {L"", L""},
    };
    // clang-format on
    for (const auto& [text, folder] : typed) EXPECT_EQ(folder, WatchExclusionOfTyped(text)) << text.size();
    const std::vector<std::wstring> rows = {L" C:\\B ", L"C:\\A", L"C:\\B", L" ", L"C:\\After"};
    EXPECT_EQ((TextList{L"C:\\B", L"C:\\A", L"C:\\B"}), WatchExclusionsToStore(rows));
    EXPECT_EQ(TextList{}, WatchExclusionsToStore({}));
}

}  // namespace
