// The system's code pages for tests: the guess is whatever the test set, and a conversion widens
// each byte to one unit, so that a test sees which bytes were converted and from which code page.
#pragma once

#include <set>
#include <vector>

#include "platform/CodePages.h"

namespace platform::fake {

class FakeCodePages : public CodePages {
public:
    std::optional<uint32_t> DetectInputCodepage(std::span<const uint8_t> bytes) override;
    std::optional<std::wstring> ConvertToUnicode(uint32_t codePage, std::span<const uint8_t> bytes,
                                                 size_t outputUnits) override;

    void Guess(std::optional<uint32_t> codePage) { guess_ = codePage; }
    void Refuse(uint32_t codePage) { refused_.insert(codePage); }
    // How often the guess was asked for, and each code page converted from, in turn.
    int guesses() const { return guesses_; }
    const std::vector<uint32_t>& conversions() const { return conversions_; }

private:
    std::optional<uint32_t> guess_;
    std::set<uint32_t> refused_;
    int guesses_ = 0;
    std::vector<uint32_t> conversions_;
};

}  // namespace platform::fake
