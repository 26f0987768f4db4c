#include "definitions/MacroHelperData.h"

#include <algorithm>

#include "services/PathHelpers.h"
#include "services/Tokenizer.h"
#include "services/WideStream.h"

namespace {

// The reader's line buffer: 32766 units and the terminator.
constexpr size_t kLineBufferChars = 32767;

}  // namespace

std::wstring MacroHelperFilePath(const std::wstring& programDirectory, const std::wstring& languageTag, int32_t mode) {
    if (mode < 0 || mode >= kMacroHelperModeCount) return std::wstring();
    return programDirectory + languageTag + L"\\Option\\MacroHelper\\" + kMacroHelperFiles[mode];
}

std::wstring ReadMacroHelperText(const std::wstring& path) {
    WideStream stream;
    std::wstring line;
    if (path.empty() || !stream.Open(path) || !stream.ReadLine(line, kLineBufferChars)) return std::wstring();
    std::erase(line, L'\uFEFF');
    return line;
}

std::wstring EnvironmentEntries(const std::wstring& names) {
    std::vector<std::wstring> parts;
    Tokenize(parts, names, L'/', true, false);
    std::wstring entries;
    for (const std::wstring& name : parts) {
        if (!entries.empty()) entries += L'/';
        entries += name + L'\t' + ExpandEnvironment(name);
    }
    return entries;
}

MacroHelperOffer SplitMacroHelperOffer(const std::wstring& text) {
    MacroHelperOffer offer;
    std::vector<std::wstring> parts;
    Tokenize(parts, text, L'/', false, true);
    for (const std::wstring& part : parts) {
        size_t tab = part.find(L'\t');
        if (tab == std::wstring::npos) {
            offer.malformed = true;
            break;
        }
        offer.rows.push_back({part.substr(0, tab), part.substr(tab)});
    }
    return offer;
}

MacroHelperOffer LoadMacroHelperOffer(const std::wstring& programDirectory, const std::wstring& languageTag,
                                      int32_t mode) {
    std::wstring text = ReadMacroHelperText(MacroHelperFilePath(programDirectory, languageTag, mode));
    if (mode == kMacroHelperEnvironment) text = EnvironmentEntries(text);
    return SplitMacroHelperOffer(text);
}
