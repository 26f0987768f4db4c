// What the list pages decide beyond moving a value into a control and back: values whose bits are
// check boxes, the thumbnail sizes offered as a list, and the folders automatic update leaves alone.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "resources/pages/PageIds.h"
#include "settings/ListValues.h"

// A check box that stands for one bit of a stored value.
struct BitCheck {
    int control;
    uint32_t bit;
};

// Which views show files by their real names: the bit is the view's number.
inline constexpr BitCheck kRealNameChecks[] = {
    {IDC_MODE_STYLE_REAL_NAME_ICON, 1u << 0},    {IDC_MODE_STYLE_REAL_NAME_LIST, 1u << 1},
    {IDC_MODE_STYLE_REAL_NAME_EX_LIST, 1u << 2}, {IDC_MODE_STYLE_REAL_NAME_DETAIL, 1u << 4},
    {IDC_MODE_STYLE_REAL_NAME_TILE, 1u << 5},    {IDC_MODE_STYLE_REAL_NAME_CONTENT, 1u << 6},
};

// Comparison of names in the custom sort: the flags the host hands to the system's string comparison.
inline constexpr uint32_t kSortDigitsAsNumbers = 0x8;
inline constexpr BitCheck kCustomSortChecks[] = {
    {IDC_CUSTOM_SORT_IGNORE_CASE, 0x10},             // LINGUISTIC_IGNORECASE
    {IDC_CUSTOM_SORT_IGNORE_KANA, 0x10000},          // NORM_IGNOREKANATYPE
    {IDC_CUSTOM_SORT_IGNORE_DIACRITIC, 0x20},        // LINGUISTIC_IGNOREDIACRITIC
    {IDC_CUSTOM_SORT_IGNORE_SYMBOLS, 0x4},           // NORM_IGNORESYMBOLS
    {IDC_CUSTOM_SORT_IGNORE_WIDTH, 0x20000},         // NORM_IGNOREWIDTH
    {IDC_CUSTOM_SORT_STRING_SORT, 0x1000},           // SORT_STRINGSORT
    {IDC_CUSTOM_SORT_DIGITS, kSortDigitsAsNumbers},  // SORT_DIGITSASNUMBERS
};

inline constexpr BitCheck kThumbChecks[] = {{IDC_THUMB_TEXT, kThumbText}, {IDC_THUMB_SHELL_IMAGE, kThumbShellImage}};

// The single selection is the one flag of the list's other styles that a user sets.
inline constexpr BitCheck kOtherStyleChecks[] = {{IDC_LIST_STYLE_SINGLE_SELECT, kSingleSelectionStyle}};

// The custom sort flags to store. Systems 5.1 and 6.0 (major * 100 + minor) do not know the
// comparison of digits as numbers, and fail a comparison that asks for it.
uint32_t CustomSortFlagsFor(uint32_t ticked, int32_t systemVersion);

// Thumbnail sizes are offered from 16 to 400 pixels in steps of 16.
inline constexpr int kThumbSizeCount = 25;
// The item that shows a size, rounded down to a step; nullopt for one outside the list.
std::optional<int> ThumbSizeItem(int32_t size);
int32_t ThumbSizeOfItem(int item);

// The folders automatic update leaves alone: at most this many.
inline constexpr size_t kMaxWatchExclusions = 20;
// A folder as typed: one trailing "\" or "/" dropped, then white space trimmed. Empty: nothing to add.
std::wstring WatchExclusionOfTyped(std::wstring_view typed);
// What the rows of the list store: each trimmed, in order, up to the first that is empty.
TextList WatchExclusionsToStore(std::span<const std::wstring> rows);
