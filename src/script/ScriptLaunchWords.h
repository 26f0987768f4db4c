// The words of a statement that start programs: "call" and "exec" as statements, whose result goes
// nowhere, and "run", "shell" and "exrun", which come last of all statements.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"
#include "script/ScriptLine.h"

// True when the line was a "call" or "exec" statement; it has run.
bool RunCallStatement(ScriptFrame& frame, const ScriptLine& line);
// The functions "call" and "exec": the program's exit code.
FunctionResult CallFunction(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult ExecFunction(ScriptFrame& frame, const std::wstring& arguments);
// True when the line was a "run", "shell" or "exrun" statement; it has run.
bool RunTargetStatement(ScriptFrame& frame, const ScriptLine& line);
// Once the script has ended: for each item it started with, the first "exrun" entry that takes the
// item starts its program for it.
void RunDeferredLaunches(ScriptFrame& frame);
