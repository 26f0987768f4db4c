#include "pages/FolderState.h"

#include <array>

#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

// The field at [start, start + width), as _wtoi takes it when cut out of the string.
int32_t Field(const std::wstring& text, size_t start, size_t width) {
    return crt::Wtoi(text.substr(start, width));
}

constexpr int32_t kSortKeyOffset = 100;

// View number written for each radio; 3 and 8 have none of their own.
constexpr std::array<int32_t, 7> kViewNumbers = {2, 1, 4, 5, 6, 0, 7};
constexpr int kListViewRadio = 1;

}  // namespace

bool ParseFolderState(const std::wstring& text, FolderState& state) {
    if (text.size() < kShortestFolderState) return false;
    state.foldersFirst = Field(text, 2, 1);
    state.direction = Field(text, 4, 1);
    state.viewNumber = Field(text, 6, 2);
    state.iconSize = Field(text, 9, 2);
    state.sortKey = static_cast<int32_t>(static_cast<uint32_t>(Field(text, 14, 8)) - kSortKeyOffset);
    state.reservedFlag = Field(text, 23, 4) != 0;
    state.reservedNumber = Field(text, 41, 2);
    const size_t tab = text.find(L'\t');
    state.path = tab == std::wstring::npos ? std::wstring() : text.substr(tab + 1);
    return true;
}

std::wstring BuildFolderState(const FolderState& state) {
    const int32_t storedKey = static_cast<int32_t>(static_cast<uint32_t>(state.sortKey) + kSortKeyOffset);
    return crt::Format(L"%01d %01d %01d %02d %02d %01d %08d %04d%04d %08d %02d %02d\t%s", 0, state.foldersFirst,
                       state.direction, state.viewNumber, state.iconSize, 0, storedKey, 0, 0, 0, 0, 0, state.path);
}

int ViewRadioOfNumber(int32_t viewNumber) {
    if (viewNumber == 8) return 3;
    for (size_t radio = 0; radio < kViewNumbers.size(); ++radio)
        if (kViewNumbers[radio] == viewNumber) return static_cast<int>(radio);
    return kListViewRadio;
}

int32_t ViewNumberOfRadio(int radio, int32_t previousNumber) {
    if (radio < 0 || radio >= static_cast<int>(kViewNumbers.size())) return previousNumber;
    return kViewNumbers[static_cast<size_t>(radio)];
}
