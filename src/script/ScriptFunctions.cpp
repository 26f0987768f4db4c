#include "script/ScriptFunctions.h"

#include "script/ScriptFileFunctions.h"
#include "script/ScriptSystemFunctions.h"

namespace {

// The built-in functions come as rows of this table.
const ScriptFunction kFunctions[] = {
    {L"fileread", FileReadFunction},
    {L"fileallread", FileAllReadFunction},
    {L"getsystemmetrics", SystemMetricsFunction},
    // The one function without arguments: its name alone, and nothing behind it, not even a comma.
    {L"getclipboardtext", ClipboardTextFunction, false, 1, 1},
};

}  // namespace

const ScriptFunction* FindScriptFunction(const std::wstring& name) {
    for (const ScriptFunction& function : kFunctions)
        if (name == function.name) return &function;
    return nullptr;
}
