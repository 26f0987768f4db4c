// How the definition pages open one of the user's files: the page's edit mode chooses between the
// program the shell associates with it, the user's editor script, and the program's own editor.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

struct AppServices;

enum DefinitionEditMode : int32_t {
    kEditWithShell = 0,
    kEditWithEditorScript = 1,
    kEditWithOwnEditor = 2,
};

// Runs the user's "Script\Editor.txt" with the file as its one argument; an unreadable script is told
// by the runner.
void RunEditorScript(AppServices& app, const std::wstring& file);
// Opens the file as mode says; ownEditor runs for the program's own editor. Any other mode does nothing.
void OpenDefinitionFile(AppServices& app, int32_t mode, const std::wstring& file,
                        const std::function<void()>& ownEditor);
