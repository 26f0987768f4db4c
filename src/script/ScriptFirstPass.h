// The pass over a whole script before any of it runs: labels, the end mark and the trace switch.
#pragma once

#include "script/ScriptFrame.h"

// Reads the frame's script from its start, fills its label table and finds its trace window.
// False when the run must end: a label stands twice (the user has been told).
bool RunFirstPass(ScriptFrame& frame);
