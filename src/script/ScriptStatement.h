// A line that is no control word: a run option, an assignment, a command, or a line nobody claims.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// "var name" declares; "var name = value" declares and goes on as the assignment.
LineOutcome RunVar(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunStatement(ScriptFrame& frame, const ScriptLine& line);
