// The one output file of a script: fileopenmode, bomout, fileopen, filewritew and filewritea.
// "fileclose" is a bare statement of the main loop; the frame closes the file at its end anyway.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// The next fileopen empties its file, unless the value is "0".
LineOutcome RunFileOpenMode(ScriptFrame& frame, const ScriptLine& line);
// The next filewritew puts a byte order mark first, unless the value is "0".
LineOutcome RunByteOrderMarkOut(ScriptFrame& frame, const ScriptLine& line);
// Opens the file for this frame alone, appending or, after fileopenmode, emptied.
LineOutcome RunFileOpen(ScriptFrame& frame, const ScriptLine& line);
// The line's text and a line end, as UTF-16 or in the ANSI code page.
LineOutcome RunFileWriteWide(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunFileWriteAnsi(ScriptFrame& frame, const ScriptLine& line);
