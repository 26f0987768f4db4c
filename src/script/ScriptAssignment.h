// Assignment: name = value to a declared variable. The value is the right side with variables and
// macros put in, or what a compound form or a function makes of it; text that looks like arithmetic
// is computed, so 007 is stored as 7 and 2024-01-15 as 2008.
#pragma once

#include <optional>
#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"
#include "script/ScriptLine.h"

struct WorkedOutAssignment {
    std::wstring name;
    std::wstring value;
    // What the trace window is told behind the name: the value, or a raw function's argument text;
    // nothing for a function that stores without a report.
    std::optional<std::wstring> traced;
    bool dropped = false;
};

// The declared variable that statement assigns to, its index expanded; nothing when the text left of
// the first equals sign names no declared variable.
std::optional<std::wstring> AssignedName(const ScriptFrame& frame, const std::wstring& statement);
// The right side of an assignment, expanded, and the function it names, if any.
struct AssignmentRight {
    std::wstring name;
    std::wstring old;
    // Expanded but untrimmed: an append keeps the blanks behind its "&".
    std::wstring rawRight;
    std::wstring right;
    const ScriptFunction* function = nullptr;
    // The right side behind its first comma.
    std::wstring arguments;
    std::wstring statement;
    // Message boxes and programs are worked out only once the commands have had the line.
    bool afterCommands() const { return function && function->afterCommands; }
};

AssignmentRight ReadAssignmentRight(ScriptFrame& frame, const std::wstring& name, const ScriptLine& line);
// The value for the name: the compound form, the function's result or the right side, computed when
// it is arithmetic. Nothing when the computation failed: that was reported and ends the run.
std::optional<WorkedOutAssignment> WorkOutAssignment(ScriptFrame& frame, const AssignmentRight& right);
void StoreAssignment(ScriptFrame& frame, const WorkedOutAssignment& assignment);
