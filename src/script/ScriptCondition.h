// The condition of "if" and "while": two texts and one comparison operator between them.
#pragma once

#include <string>

#include "script/ScriptFrame.h"

// 1 true, -1 false, 0 when the text holds no comparison operator. The operator is looked for in the
// text as written, before anything is expanded, so a value can never bring one in.
int EvaluateCondition(const std::wstring& condition, const ScriptFrame& frame);
