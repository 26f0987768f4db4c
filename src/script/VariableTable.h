// The script's variables: name to value, shared by a script and every script it includes.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"
#include "script/TextMap.h"

class VariableTable : public TextMap {};

// Puts each variable's value in for its name, wherever the name stands, even inside a word. Values
// may hold further names, so this repeats until a round changes nothing, ten rounds at most.
void ExpandVariables(const VariableTable& variables, std::wstring& text);

#ifdef OPTION_SCRIPT_TEXT_LIMIT
// Thrown, in the fuzz build only, before a line or value grows past OPTION_SCRIPT_TEXT_LIMIT units or
// an array would take the variables past OPTION_SCRIPT_VARIABLE_LIMIT; it ends the whole run, and
// whoever runs the script catches it.
struct ScriptTextLimitReached {};

// Throws ScriptTextLimitReached when text of this many units would be too long.
void CheckScriptTextSize(size_t size);
#endif

// A name cut at its brackets: "a[3]" is a and 3. A malformed name keeps all of itself as the base.
struct VariableName {
    std::wstring base;
    std::wstring index;
};
VariableName SplitVariableName(const std::wstring& name);

// Declares a name, or the elements 0 to n-1 of "name[n]", with empty values, and reports each to the
// trace window. The count of entries made; 0 when a name was refused, after saying why.
int32_t DeclareVariable(VariableTable& variables, const std::wstring& name, platform::WindowRef traceWindow);
