#include "script/ScriptFunctions.h"

#include "script/ScriptMessageBoxes.h"

namespace {

// The built-in functions come as rows of this table.
const ScriptFunction kFunctions[] = {
    {L"messagebox", MessageBoxFunction, true, 3},
    {L"messageboxok", MessageBoxOkFunction, true},
    {L"messageboxyn", MessageBoxYnFunction, true},
};

}  // namespace

const ScriptFunction* FindScriptFunction(const std::wstring& name) {
    for (const ScriptFunction& function : kFunctions)
        if (name == function.name) return &function;
    return nullptr;
}
