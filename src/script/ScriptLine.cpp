#include "script/ScriptLine.h"

#include <vector>

#include "services/CRuntime.h"
#include "services/Tokenizer.h"

ScriptLine MakeScriptLine(const ScriptFrame& frame, const std::wstring& text) {
    const std::wstring& path = frame.arguments.scriptPath;
    const size_t slash = path.rfind(L'\\');
    ScriptLine line;
    line.raw = text;
    crt::Replace(line.raw, L"?SelectedCount?", frame.selectedCountText);
    crt::Replace(line.raw, L"?ScriptName?", slash == std::wstring::npos ? path : path.substr(slash + 1));
    crt::Replace(line.raw, L"?ScriptPath?", path.substr(0, slash + 1));  // empty when there is no backslash
    line.spaced = line.raw;
    crt::Replace(line.spaced, L"\t", L" ");
    line.statement = crt::Trim(line.spaced);
    std::vector<std::wstring> tokens;
    Tokenize(tokens, crt::MakeLower(line.statement), L' ', false, true);
    line.tokenCount = tokens.size();
    if (!tokens.empty()) line.keyword = crt::Trim(tokens.front());
    line.word = LeftOfSeparator(line.statement, L'=', true);
    line.value = RightOfSeparator(line.statement, L'=', true);
    return line;
}
