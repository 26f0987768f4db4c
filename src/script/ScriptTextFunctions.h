// Functions on text: lengths, pieces, searching, replacing, lists and arithmetic.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"

FunctionResult Length(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult SubString(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult Find(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult ReplaceText(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult CsvField(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult LeftText(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult RightText(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult Compute(ScriptFrame& frame, const std::wstring& arguments);
// Places the window in the host only; here it leaves its arguments as the value.
FunctionResult MainWindowPosition(ScriptFrame& frame, const std::wstring& arguments);
