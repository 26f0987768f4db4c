// Functions: a name and arguments behind the equals sign of an assignment, such as x = left,2,abc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "script/ScriptFrame.h"

// What went wrong in a function, reported by the assignment, which knows the line.
enum class FunctionFault {
    None,
    SyntaxError,  // too few fields: "Syntax error!" and the right side; nothing is stored
    IllegalCall,  // an argument out of range: "Illegal Function Call!" and the right side; nothing is stored
    Computation,  // the evaluator failed with the code in computeError: the run ends
};

struct FunctionResult {
    std::wstring text;
    // Raw text is stored as it is, empty or not: no hexadecimal rewriting, no computing.
    bool raw = false;
    // The function reported a fault: nothing is stored.
    bool dropped = false;
    FunctionFault fault = FunctionFault::None;
    int32_t computeError = 0;
    // The text is stored as it is and nothing else of the assignment happens, not even the trace.
    bool untraced = false;
};

struct ScriptFunction {
    const wchar_t* name;  // lower case; the script may write it in any case
    // arguments: the right side behind its first comma, untrimmed.
    FunctionResult (*run)(ScriptFrame& frame, const std::wstring& arguments);
    // Message boxes and programs wait for the line's commands: a command of the variable's name
    // wins, and then the box is never shown and the program never started.
    bool afterCommands = false;
    // The fields of the right side, the name included, the function needs; with fewer or more the
    // right side is no function and stands as text.
    size_t fewestFields = 2;
    size_t mostFields = SIZE_MAX;
};

// The function of that lowered name, or null.
const ScriptFunction* FindScriptFunction(const std::wstring& name);
