// The commands that change the items a script runs for: adding, listing and removing.
#pragma once

#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

LineOutcome RunAppendSelectItem(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunAppendCsvSelectItem(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunGetSelectItems(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunRemoveSelectItems(ScriptFrame& frame, const ScriptLine& line);
// "RemoveSelectItems" inside a "for" body: the items would move under the loop, so the run ends.
LineOutcome RefuseRemovalInLoop();
