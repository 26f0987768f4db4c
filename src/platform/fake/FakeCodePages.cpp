#include "platform/fake/FakeCodePages.h"

namespace platform::fake {

std::optional<uint32_t> FakeCodePages::DetectInputCodepage(std::span<const uint8_t> bytes) {
    ++guesses_;
    return guess_;
}

std::optional<std::wstring> FakeCodePages::ConvertToUnicode(uint32_t codePage, std::span<const uint8_t> bytes,
                                                            size_t outputUnits) {
    conversions_.push_back(codePage);
    if (refused_.count(codePage) != 0) return std::nullopt;
    std::wstring text(bytes.begin(), bytes.end());
    if (text.size() > outputUnits) text.resize(outputUnits);
    return text;
}

}  // namespace platform::fake
