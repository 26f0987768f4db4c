// Commands that reach the system rather than the host: the registry, the clipboard, waiting, and the
// speech words, which this program accepts but cannot act on.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// key, name, number: a DWORD under the host's settings key. The value is taken as written.
LineOutcome RunWriteRegNum(ScriptFrame& frame, const ScriptLine& line);
// key, name, text: a string, the text being all that stands behind the name, commas included.
LineOutcome RunWriteRegString(ScriptFrame& frame, const ScriptLine& line);
// speachflag, speachvolume, speachratespeed and speachpitch.
LineOutcome RunSpeechWord(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunSetClipboardText(ScriptFrame& frame, const ScriptLine& line);
// Milliseconds; the whole program waits.
LineOutcome RunWait(ScriptFrame& frame, const ScriptLine& line);
