// The main loop: one line at a time from the top, jumps made by moving the reader's position. Blocks
// are not matched in advance: skipping is reading on with a flag set, so the order of the tests on a
// line decides what the language means.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"

// How a line leaves the loop.
enum class LineOutcome {
    Next,         // on with the line at the reader's position
    EndOfScript,  // the script ends with 0 and its deferred launches still run: the end, "EOF", some errors
    Exit,         // the script ends with 0 at once: "exit" and most errors
    EndAll,       // this script and every one that included it end at once, with -1
};

// Runs the frame's script from its first line; the result is how it ended.
LineOutcome RunMainLoop(ScriptFrame& frame);
// One line, already cut up.
LineOutcome RunLine(ScriptFrame& frame, const ScriptLine& line);
