#include "HostHandshake.h"

#include <algorithm>
#include <cstring>

namespace e2e {

std::wstring SwitchString(int windowMode, int reactivate, int first, int second, DWORD sizeBytes,
                          const std::wstring& word) {
    return std::to_wstring(windowMode) + L":" + std::to_wstring(reactivate) + L":" + std::to_wstring(first) + L":" +
           std::to_wstring(second) + L":" + std::to_wstring(sizeBytes) + L":0:0:0:" + word + L":0";
}

EnvVar HostSwitch(const std::wstring& switchString) {
    return {L"QOR_ExCommand", switchString};
}

std::wstring ShareBlockText(const std::wstring& currentDir, const std::wstring& option,
                            const std::vector<std::wstring>& firstList, const std::vector<std::wstring>& secondList) {
    std::wstring text = std::to_wstring(firstList.size()) + L"\t" + std::to_wstring(secondList.size()) + L"\t" +
                        currentDir + L"\t" + option + L"\t";
    for (const auto* list : {&firstList, &secondList})
        for (const std::wstring& item : *list) text += item + L"\t";
    return text;
}

ShareBlock::ShareBlock(int first, int second, DWORD sizeBytes, const std::wstring& text) : size_(sizeBytes) {
    std::wstring name = L"ShareMem_" + std::to_wstring(first) + L"_" + std::to_wstring(second);
    mapping_.reset(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeBytes, name.c_str()));
    mutex_.reset(CreateMutexW(nullptr, FALSE, (name + L"_Mutex").c_str()));
    if (!mapping_) return;
    view_.reset(MapViewOfFile(mapping_.get(), FILE_MAP_ALL_ACCESS, 0, 0, sizeBytes));
    if (!view_) return;
    size_t bytes = std::min<size_t>(sizeBytes, (text.size() + 1) * sizeof(wchar_t));
    memcpy(view_.get(), text.c_str(), bytes);
}

std::wstring ShareBlock::Contents() const {
    if (!view_) return {};
    std::wstring units(size_ / sizeof(wchar_t), L'\0');
    memcpy(units.data(), view_.get(), units.size() * sizeof(wchar_t));
    return units;
}

}  // namespace e2e
