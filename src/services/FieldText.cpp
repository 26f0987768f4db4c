#include "services/FieldText.h"

#include <limits>

#include "services/CRuntime.h"
#include "services/Format.h"

namespace fieldtext {

namespace {

bool IsBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

std::wstring_view StripBlanks(std::wstring_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

// Sign and magnitude of a decimal integer; nullopt when the text is not one or the magnitude
// passes limit.
struct Signed {
    bool negative;
    uint64_t magnitude;
};

std::optional<Signed> ParseDecimal(std::wstring_view text, uint64_t limit) {
    text = StripBlanks(text);
    Signed result{false, 0};
    if (!text.empty() && (text.front() == L'+' || text.front() == L'-')) {
        result.negative = text.front() == L'-';
        text.remove_prefix(1);
    }
    if (text.empty()) return std::nullopt;
    for (wchar_t c : text) {
        if (c < L'0' || c > L'9') return std::nullopt;
        result.magnitude = result.magnitude * 10 + static_cast<uint64_t>(c - L'0');
        if (result.magnitude > limit) return std::nullopt;
    }
    return result;
}

}  // namespace

std::optional<int32_t> ParseInt(std::wstring_view text) {
    constexpr uint64_t kMostNegative = uint64_t{1} << 31;
    auto parsed = ParseDecimal(text, kMostNegative);
    if (!parsed) return std::nullopt;
    if (parsed->negative) return static_cast<int32_t>(-static_cast<int64_t>(parsed->magnitude));
    if (parsed->magnitude == kMostNegative) return std::nullopt;
    return static_cast<int32_t>(parsed->magnitude);
}

std::optional<uint32_t> ParseUInt(std::wstring_view text) {
    auto parsed = ParseDecimal(text, std::numeric_limits<uint32_t>::max());
    if (!parsed || parsed->negative) return std::nullopt;
    return static_cast<uint32_t>(parsed->magnitude);
}

std::wstring ShowInt(int32_t value) {
    return crt::Format(L"%d", value);
}

std::wstring ShowUInt(uint32_t value) {
    return crt::Format(L"%u", value);
}

std::wstring IntegerExpected() {
    return L"Please enter an integer.";
}

std::wstring PositiveIntegerExpected() {
    return L"Please enter a positive integer.";
}

std::wstring IntegerBetween(int32_t min, int32_t max) {
    return crt::Format(L"Please enter an integer between %d and %d.", min, max);
}

std::wstring UnsignedBetween(uint32_t min, uint32_t max) {
    return crt::Format(L"Please enter an integer between %u and %u.", min, max);
}

std::wstring NoMoreCharacters(int count) {
    return crt::Format(L"Please enter no more than %d characters.", count);
}

}  // namespace fieldtext
