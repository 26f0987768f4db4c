#include "script/ScriptMatchers.h"

#include <vector>

#include "script/MacroExpansion.h"
#include "services/CRuntime.h"
#include "services/Tokenizer.h"

bool MatchWildcard(const std::wstring& text, const std::wstring& pattern) {
    // Trying the shorter run of a "*" first and falling back to the latest "*" on a mismatch gives
    // what trying every run would, without the recursion's cost on long texts.
    size_t t = 0;
    size_t p = 0;
    size_t starPattern = std::wstring::npos;
    size_t starText = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            starPattern = p++;
            starText = t;
        } else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (starPattern != std::wstring::npos) {
            p = starPattern + 1;
            t = ++starText;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*') ++p;
    return p == pattern.size();
}

bool MatchPatternList(const std::wstring& text, const std::wstring& patterns) {
    std::vector<std::wstring> list;
    Tokenize(list, crt::MakeLower(patterns), L';', false, false);
    const std::wstring lowered = crt::MakeLower(text);
    for (const std::wstring& pattern : list)
        if (MatchWildcard(lowered, pattern)) return true;
    return false;
}

bool MatchExtensionList(const std::wstring& list, const std::wstring& itemPath) {
    std::vector<std::wstring> entries;
    Tokenize(entries, list, L',', true, false);
    const std::wstring extension = SplitItemPath(itemPath).extension;
    if (extension.size() < 2) return false;
    const std::wstring wanted = crt::MakeLower(extension.substr(1));
    for (const std::wstring& entry : entries)
        if (crt::MakeLower(entry) == wanted) return true;
    return false;
}
