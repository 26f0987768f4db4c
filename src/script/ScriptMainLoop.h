// The main loop: one line at a time from the top, jumps made by moving the reader's position.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"

// How a line leaves the loop.
enum class LineOutcome {
    Next,         // on with the line at the reader's position
    EndOfScript,  // the end of the file or "EOF": the script has run to its end
    EndAll,       // this script and every one that included it end, with -1
};

// Runs the frame's script from its first line; the result is how it ended.
LineOutcome RunMainLoop(ScriptFrame& frame);
// One line, already cut up.
LineOutcome RunLine(ScriptFrame& frame, const ScriptLine& line);
