// Functions on paths: what exists, and the pieces of a path's text.
#pragma once

#include <string>

#include "script/ScriptFrame.h"
#include "script/ScriptFunctions.h"

FunctionResult RandomItem(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult Exist(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult IsDirectory(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult IsFile(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult GetPath(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult GetName(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult GetExt(ScriptFrame& frame, const std::wstring& arguments);
FunctionResult RemoveLastSeparator(ScriptFrame& frame, const std::wstring& arguments);
