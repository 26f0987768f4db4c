// The trace channel: a script with a "debug" line reports what it does to a window of that title,
// if one was there when the script was first read. Nothing comes back.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"

enum TraceCode : uint32_t {
    kTraceScriptPath = 1,
    kTraceLineNumber = 2,
    kTraceVariable = 10,  // name, tab, value
};

// The trace window of the moment, or 0.
platform::WindowRef FindTraceWindow();
// Looks the window up again, since it may have gone, and sends it the code and the text as copy data.
// Does nothing when the frame found none at its start.
void ReportTrace(platform::WindowRef traceWindow, TraceCode code, const std::wstring& text);
