#include "script/ScriptNumbers.h"

#include <algorithm>
#include <vector>

#include "script/ExpressionEvaluator.h"
#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

bool IsHexDigit(wchar_t c) { return IsDigit(c) || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F'); }

std::wstring WithoutBlanks(const std::wstring& text) {
    std::wstring packed = text;
    std::erase(packed, L' ');
    return packed;
}

bool IsHexForm(const std::wstring& packed) {
    return packed.size() > 2 && packed.starts_with(L"0x") && std::all_of(packed.begin() + 2, packed.end(), IsHexDigit);
}

bool IsDigitsOnly(const std::wstring& packed) { return std::all_of(packed.begin(), packed.end(), IsDigit); }

}  // namespace

bool IsScriptNumber(const std::wstring& text) {
    const std::wstring packed = WithoutBlanks(text);
    return IsHexForm(packed) || IsDigitsOnly(packed);
}

std::wstring NormalisedNumberText(const std::wstring& text) {
    const std::wstring packed = WithoutBlanks(text);
    if (packed.empty()) return text;
    if (IsHexForm(packed)) return crt::Format(L"%lld", static_cast<int64_t>(crt::Wcstol(packed.c_str(), nullptr, 0)));
    if (IsDigitsOnly(packed)) return crt::Format(L"%lld", crt::Wtoi64(packed));
    return text;
}

bool IsSignedInteger(const std::wstring& text) {
    const size_t start = !text.empty() && (text[0] == L'+' || text[0] == L'-') ? 1 : 0;
    return std::all_of(text.begin() + static_cast<ptrdiff_t>(start), text.end(), IsDigit);
}

int64_t ScriptInteger(const std::wstring& text) {
    if (text.find(L'x') != std::wstring::npos) return crt::Wcstol(text.c_str(), nullptr, 0);
    return crt::Wtoi64(text);
}

void RewriteHexNumbers(std::wstring& text) {
    struct Number {
        size_t start;
        size_t length;
    };
    std::vector<Number> numbers;
    for (size_t at = 0; at + 2 < text.size(); ++at) {
        if (text[at] != L'0' || text[at + 1] != L'x' || !IsHexDigit(text[at + 2])) continue;
        size_t end = at + 2;
        while (end < text.size() && IsHexDigit(text[end])) ++end;
        numbers.push_back({at, end - at});
        at = end - 1;
    }
    // From the last, so that the offsets of the earlier ones still hold.
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        const std::wstring digits = text.substr(number->start, number->length);
        const int64_t value = crt::Wcstol(digits.c_str(), nullptr, 0);
        text.replace(number->start, number->length, crt::Format(L"%lld", value));
    }
}

bool IsExpressionText(const std::wstring& text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t c) {
        return IsDigit(c) || c == L'.' || c == L'(' || c == L')' || IsOperatorCharacter(c);
    });
}
