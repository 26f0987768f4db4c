// Assignment: name = value to a declared variable. The value is the right side with variables and
// macros put in, or what a compound form or a function makes of it; text that looks like arithmetic
// is computed, so 007 is stored as 7 and 2024-01-15 as 2008.
#pragma once

#include <optional>
#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"

struct WorkedOutAssignment {
    std::wstring name;
    std::wstring value;
    // What the trace window is told behind the name: the value, or a raw function's argument text.
    std::wstring traced;
    bool dropped = false;
};

// The declared variable that statement assigns to, its index expanded; nothing when the text left of
// the first equals sign names no declared variable.
std::optional<std::wstring> AssignedName(const ScriptFrame& frame, const std::wstring& statement);
// The value for name from the right side of the spaced line. Nothing when the computation failed:
// that was reported and ends the run.
std::optional<WorkedOutAssignment> WorkOutAssignment(ScriptFrame& frame, const std::wstring& name,
                                                     const ScriptLine& line);
void StoreAssignment(ScriptFrame& frame, const WorkedOutAssignment& assignment);
