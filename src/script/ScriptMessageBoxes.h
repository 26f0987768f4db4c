// Message boxes a script shows, as statements and as functions. They wait for the line's commands
// like the programs a line starts, and are owned by the host's window when one is there.
#pragma once

#include <optional>
#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// "messagebox = flags, text", "messageboxok = text", "messageboxyn = text"; No to the last ends the
// run at once. Nothing when the line is none of them, and for a "messagebox" line without a comma,
// which no one understands.
std::optional<LineOutcome> RunMessageBoxStatement(ScriptFrame& frame, const ScriptLine& line);

// x = messagebox, flags, text; x = messageboxok, text; x = messageboxyn, text: the button pressed.
FunctionResult MessageBoxFunction(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult MessageBoxOkFunction(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult MessageBoxYnFunction(ScriptFrame& frame, const std::wstring& arguments);
