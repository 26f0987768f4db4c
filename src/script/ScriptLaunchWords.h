// The words of a statement that start programs: "call" and "exec" as statements, whose result goes
// nowhere, and "run" and "shell", which come last of all statements.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"

// True when the line was a "call" or "exec" statement; it has run.
bool RunCallStatement(ScriptFrame& frame, const ScriptLine& line);
// True when the line was a "run" or "shell" statement; it has run.
bool RunTargetStatement(ScriptFrame& frame, const ScriptLine& line);
