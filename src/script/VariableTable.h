// The script's variables: name to value, shared by a script and every script it includes.
#pragma once

#include <string>

#include "script/TextMap.h"

class VariableTable : public TextMap {};

// Puts each variable's value in for its name, wherever the name stands, even inside a word. Values
// may hold further names, so this repeats until a round changes nothing, ten rounds at most.
void ExpandVariables(const VariableTable& variables, std::wstring& text);
