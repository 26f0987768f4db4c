#include "script/ScriptTrace.h"

#include "platform/Platform.h"

namespace {

constexpr const wchar_t* kTraceWindowTitle = L"Script trace Qor";

}  // namespace

platform::WindowRef FindTraceWindow() {
    return platform::Current().windows.FindWindowByTitle(kTraceWindowTitle);
}

void ReportTrace(platform::WindowRef traceWindow, TraceCode code, const std::wstring& text) {
    if (!traceWindow) return;
    const platform::WindowRef window = FindTraceWindow();
    if (!window) return;
    // Four times what the text takes; receivers go by the terminator, so the count stays as it always was.
    const uint32_t byteCount = static_cast<uint32_t>(text.size()) * 8 + 8;
    platform::Current().windows.SendCopyData(window, 0, code, text, byteCount);
}
