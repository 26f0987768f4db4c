// GetSystemMetrics and GetClipboardText: what the system knows, as script text.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"

// The metric of the index, "%d".
FunctionResult SystemMetricsFunction(ScriptFrame& frame, const std::wstring& arguments);
// The clipboard's text as it stands, empty when there is none.
FunctionResult ClipboardTextFunction(ScriptFrame& frame, const std::wstring& arguments);
