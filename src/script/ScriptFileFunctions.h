// fileread and fileallread: a data file read through the frame's data reader, which stays on its
// file from call to call and starts again at the top when another path comes.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"

// The next line, or "ERROR" once the file is at its end.
FunctionResult FileReadFunction(ScriptFrame& frame, const std::wstring& arguments);
// The whole text behind the byte order mark; the next line to read stays where it was.
FunctionResult FileAllReadFunction(ScriptFrame& frame, const std::wstring& arguments);
