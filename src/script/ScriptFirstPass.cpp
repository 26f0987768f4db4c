#include "script/ScriptFirstPass.h"

#include "platform/Platform.h"
#include "script/ScriptTrace.h"
#include "services/CRuntime.h"

bool RunFirstPass(ScriptFrame& frame) {
    while (frame.ReadLine()) {
        std::wstring line = frame.line();
        crt::Replace(line, L"\t", L" ");
        line = crt::Trim(line);
        // A comment is a whole line: "//" further on means nothing.
        if (line.empty() || line.starts_with(L"//")) continue;
        const std::wstring lowered = crt::MakeLower(line);
        if (lowered == L"eof") break;
        if (lowered == L"debug") frame.TraceWindow = FindTraceWindow();
        if (lowered == L"do") continue;
        // Any line ending in a colon names a label, a statement that happens to end in one too.
        if (line.back() != L':') continue;
        const std::wstring label = crt::Trim(std::wstring_view(line).substr(0, line.size() - 1));
        if (label.empty()) continue;
        if (!frame.labels.emplace(label, frame.reader.LineStartOffset).second) {
            platform::Current().prompts.ShowMessage(L"This label is already in use.\n" + line, platform::kStyleOk);
            return false;
        }
    }
    return true;
}
