#include "services/ShareBlock.h"

#include <algorithm>

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/SystemError.h"

namespace {

// Field i of the block; the list ranges follow from the counts, which may be anything _wtoi gives.
void TakeField(ShareBlock& block, int64_t index, std::wstring text, int64_t& firstCount, int64_t& secondCount) {
    switch (index) {
        case 0:
            firstCount = crt::Wtoi(text);
            return;
        case 1:
            secondCount = crt::Wtoi(text);
            return;
        case 2:
            block.currentDir = std::move(text);
            return;
        case 3:
            block.option = std::move(text);
            return;
        default:
            if (index <= 3 + firstCount)
                block.firstList.push_back(std::move(text));
            else if (index <= 3 + firstCount + secondCount)
                block.secondList.push_back(std::move(text));
    }
}

}  // namespace

ShareBlock SplitShareBlock(std::span<uint16_t> units, size_t limitChars) {
    ShareBlock block;
    int64_t firstCount = 0;
    int64_t secondCount = 0;
    int64_t index = 0;
    size_t start = 0;
    size_t end = std::min(units.size(), limitChars);
    for (size_t i = 0; i < end && units[i] != 0; ++i) {
        if (units[i] != L'\t') continue;
        units[i] = 0;
        TakeField(block, index++, std::wstring(units.begin() + start, units.begin() + i), firstCount, secondCount);
        start = i + 1;
    }
    return block;
}

std::wstring ShareBlockInspection(const ShareBlock& block) {
    std::wstring text = crt::Format(L"ShareMemMap\nCurrentDir:%s\nOption:%s\n", block.currentDir, block.option);
    for (const std::wstring& entry : block.firstList) text += entry + L"\t";
    text += L"\n";
    for (const std::wstring& entry : block.secondList) text += entry + L"\t";
    return text;
}

std::wstring ShareBlockName(int32_t first, int32_t second) {
    return crt::Format(L"ShareMem_%d_%d", first, second);
}

ShareBlock ReadShareBlock(int32_t first, int32_t second, int32_t sizeBytes) {
    platform::SharedMemory& memory = platform::Current().sharedMemory;
    std::wstring name = ShareBlockName(first, second);
    uint32_t error = 0;
    // A negative size reaches the system as the huge unsigned number it is, and fails there.
    auto view = memory.Map(name, static_cast<uint32_t>(sizeBytes), error);
    if (!view) {
        ShowSystemError(error);
        return {};
    }
    auto mutex = memory.Mutex(name + L"_Mutex");
    if (mutex) mutex->Lock();
    ShareBlock block = SplitShareBlock(view->Units(), static_cast<uint32_t>(sizeBytes));
    block.inspection = ShareBlockInspection(block);
    if (mutex) mutex->Unlock();
    // The view goes before the mutex.
    view.reset();
    return block;
}
