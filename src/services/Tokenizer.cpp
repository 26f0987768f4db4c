#include "services/Tokenizer.h"

#include "services/CRuntime.h"

namespace {

void AddField(std::vector<std::wstring>& target, std::wstring_view field, bool trim, bool keepEmpty) {
    std::wstring text = trim ? crt::Trim(field) : std::wstring(field);
    if (keepEmpty || !text.empty()) target.push_back(std::move(text));
}

}  // namespace

int Tokenize(std::vector<std::wstring>& target, const wchar_t* text, wchar_t separator, bool trim, bool keepEmpty) {
    if (!text || !*text) return 0;
    std::wstring_view rest(text);
    for (;;) {
        size_t at = rest.find(separator);
        AddField(target, rest.substr(0, at), trim, keepEmpty);
        if (at == std::wstring_view::npos) break;
        rest.remove_prefix(at + 1);
    }
    return static_cast<int>(target.size());
}

std::wstring LeftOfSeparator(const std::wstring& text, wchar_t separator, bool lower) {
    size_t at = text.find(separator);
    if (at == std::wstring::npos) return std::wstring();
    std::wstring left = crt::Trim(std::wstring_view(text).substr(0, at));
    return lower ? crt::MakeLower(left) : left;
}

std::wstring RightOfSeparator(const std::wstring& text, wchar_t separator, bool trim) {
    size_t at = text.find(separator);
    if (at == std::wstring::npos) return std::wstring();
    std::wstring_view right = std::wstring_view(text).substr(at + 1);
    return trim ? crt::Trim(right) : std::wstring(right);
}
