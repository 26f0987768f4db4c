// The commands of the form word = value, tried in a fixed order.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// Runs the command the line's word names and sets how the line ends; false when no command has that word.
bool RunCommand(ScriptFrame& frame, const ScriptLine& line, LineOutcome& outcome);
