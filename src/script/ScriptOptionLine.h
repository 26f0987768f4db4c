// Lines that set a run option, such as "timeout = 5000". They stay in force for the lines behind.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"

// True when the line's word is a run option, "icon" and "openmode" included: the line is over then.
bool RunOptionLine(ScriptFrame& frame, const ScriptLine& line);
