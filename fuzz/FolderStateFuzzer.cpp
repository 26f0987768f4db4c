// libFuzzer target: arbitrary bytes as UTF-16 units of a folder rule's state string, read as the
// folder page reads the registry; what it read must come back the same through the string it builds.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "pages/FolderState.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::wstring text;
    for (size_t i = 0; i + 1 < size; i += 2) text.push_back(static_cast<wchar_t>(data[i] | (data[i + 1] << 8)));
    // A registry text ends at its first NUL, as the page reads it.
    text.resize(std::min(text.size(), text.find(L'\0')));

    FolderState state;
    state.path = L"before";
    if (!ParseFolderState(text, state)) {
        if (state != FolderState{.path = L"before"}) abort();
        return 0;
    }
    FolderState again;
    if (!ParseFolderState(BuildFolderState(state), again)) abort();
    again.reservedFlag = state.reservedFlag;
    again.reservedNumber = state.reservedNumber;
    if (again != state) abort();
    ViewNumberOfRadio(ViewRadioOfNumber(state.viewNumber), state.viewNumber);
    return 0;
}
