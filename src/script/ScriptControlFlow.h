// for/next, do/while, continue, break, goto and if: the words that move the reader or open a block.
#pragma once

#include <optional>
#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// Nothing when the line is none of these words.
std::optional<LineOutcome> RunControlWord(ScriptFrame& frame, const ScriptLine& line);

// A message box with one OK button.
void ShowScriptMessage(const std::wstring& text);
// "Syntax error!" and the statement; the script goes on unless the caller ends it.
void ReportSyntaxError(const ScriptLine& line);
// "Syntax error!" and the statement; the script ends at once.
LineOutcome EndWithSyntaxError(const ScriptLine& line);
