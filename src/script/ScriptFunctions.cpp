#include "script/ScriptFunctions.h"

#include <span>

namespace {

// The built-in functions come as rows of this table.
constexpr std::span<const ScriptFunction> kFunctions;

}  // namespace

const ScriptFunction* FindScriptFunction(const std::wstring& name) {
    for (const ScriptFunction& function : kFunctions)
        if (name == function.name) return &function;
    return nullptr;
}
