#include "services/LongPath.h"

#include <cwchar>

#include "platform/Platform.h"

namespace {

constexpr size_t kLongPathThreshold = 260;

bool IsAsciiLetter(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

bool LooksLikeShortName(std::wstring_view component) {
    std::wstring_view head = component.substr(0, 8);
    bool tilde = head.find(L'~') != std::wstring_view::npos;
    bool digit = head.find_first_of(L"0123456789") != std::wstring_view::npos;
    return tilde && digit;
}

bool HasShortNameComponent(const std::wstring& path) {
    size_t start = 0;
    for (;;) {
        size_t end = path.find(L'\\', start);
        if (LooksLikeShortName(std::wstring_view(path).substr(start, end - start))) return true;
        if (end == std::wstring::npos) return false;
        start = end + 1;
    }
}

}  // namespace

std::wstring ToLongPathForm(const std::wstring& path) {
    if (path.size() < kLongPathThreshold) return path;
    if (IsAsciiLetter(path[0])) return L"\\\\?\\" + path;
    if (path.starts_with(L"\\\\") && path.find(L'?') == std::wstring::npos) {
        return L"\\\\?\\UNC" + path.substr(1);
    }
    return path;
}

std::wstring NormaliseLongName(const std::wstring& path) {
    std::wstring text = path;
    for (const wchar_t* prefix : {L"\\\\?\\UNC\\", L"\\??\\UNC\\", L"\\\\?\\"}) {
        if (text.starts_with(prefix)) {
            text.erase(0, std::wcslen(prefix));
            break;
        }
    }
    if (!HasShortNameComponent(text)) return text;
    std::wstring longPath;
    if (platform::Current().files.LongPathName(text, longPath)) return longPath;
    return text;
}
