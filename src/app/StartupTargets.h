// What start-up hands the rest of the process's life to: exactly one of these runs.
#pragma once

#include <string>

class StartupTargets {
public:
    StartupTargets() = default;
    StartupTargets(const StartupTargets&) = delete;
    StartupTargets& operator=(const StartupTargets&) = delete;
    virtual ~StartupTargets() = default;

    virtual void OpenOptionDialog() = 0;
    // The definition editors of "/E", "/R", "/D" and "/M", given the switch and the file.
    virtual void OpenEditor(int switchNumber, const std::wstring& file) = 0;
    virtual void WriteKeyLists() = 0;
    // Opens a file for editing through the user's "Script\Editor.txt".
    virtual void RunEditorScript(const std::wstring& file) = 0;
};
