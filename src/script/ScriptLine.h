// One line of a script as the main loop looks at it.
#pragma once

#include <cstddef>
#include <string>

#include "script/ScriptFrame.h"

struct ScriptLine {
    // With the script's own macros put in and its tabs kept: what is written to files.
    std::wstring raw;
    // Tabs made blanks, untrimmed: assignments take their right side from it.
    std::wstring spaced;
    // The spaced line trimmed.
    std::wstring statement;
    // The first blank-separated piece of the statement, lowered, and how many pieces there are
    // (two blanks in a row make an empty piece).
    std::wstring keyword;
    size_t tokenCount = 0;
    // "word = value": the text left of the first equals sign, trimmed and lowered, and right of it,
    // trimmed; both empty without an equals sign.
    std::wstring word;
    std::wstring value;
};

// Puts "?SelectedCount?", "?ScriptName?" and "?ScriptPath?" in, on every line, comments included,
// and cuts the line up.
ScriptLine MakeScriptLine(const ScriptFrame& frame, const std::wstring& text);
