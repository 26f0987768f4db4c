#include "script/ScriptTrace.h"

#include "platform/Platform.h"
#include "script/HostText.h"

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
    platform::Current().windows.SendCopyData(window, 0, code, text, CopyDataByteCount(text));
}
