// When the host may call an external command: the short letter code of a command list line.
#pragma once

#include <string>

struct ConditionCode {
    // 0: the current folder must be a real one; 1: no condition on it.
    int folderCondition = 0;
    // 0: the selection conditions apply; 1: run always, and hand over a selection when there is one.
    int selectionRule = 0;
    // 0: hand over real items only; 1: virtual items too.
    int virtualRule = 0;
    // At least one file, at least one folder must be selected.
    bool needsFile = false;
    bool needsFolder = false;

    bool operator==(const ConditionCode&) const = default;

    static ConditionCode Read(const std::wstring& text);
    // "N", "-" or "X" followed by the file mark ("F" or "-") and the folder mark ("D" or "-"),
    // or "A--" and "B--" for the unconditional forms.
    std::wstring Write() const;
};
