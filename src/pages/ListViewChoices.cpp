#include "pages/ListViewChoices.h"

#include "services/CRuntime.h"

uint32_t CustomSortFlagsFor(uint32_t ticked, int32_t systemVersion) {
    if (systemVersion == 501 || systemVersion == 600) return ticked & ~kSortDigitsAsNumbers;
    return ticked;
}

std::optional<int> ThumbSizeItem(int32_t size) {
    const int item = size / 16 - 1;
    if (size < 16 || item >= kThumbSizeCount) return std::nullopt;
    return item;
}

int32_t ThumbSizeOfItem(int item) {
    return (item + 1) << 4;
}

std::wstring WatchExclusionOfTyped(std::wstring_view typed) {
    if (!typed.empty() && (typed.back() == L'\\' || typed.back() == L'/')) typed.remove_suffix(1);
    return crt::Trim(typed);
}

TextList WatchExclusionsToStore(std::span<const std::wstring> rows) {
    TextList stored;
    for (const std::wstring& row : rows) {
        std::wstring folder = crt::Trim(row);
        if (folder.empty()) break;
        stored.push_back(std::move(folder));
    }
    return stored;
}
