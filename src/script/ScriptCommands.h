// The commands of the form word = value, tried in a fixed order.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// How a command gets its value from the text right of the first equals sign, trimmed.
enum class ValueForm {
    Expanded,   // ExpandScriptText with trimming: variables, directories, dates, places and items
    Variables,  // variables only
    Raw,        // as written
    RawLine,    // as Expanded, but from the line with its tabs
};

std::wstring CommandValue(const ScriptFrame& frame, const ScriptLine& line, ValueForm form);

// Runs the command the line's word names and sets how the line ends; false when no command has that word.
bool RunCommand(ScriptFrame& frame, const ScriptLine& line, LineOutcome& outcome);
