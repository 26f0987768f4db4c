// The path root tokens ("%User_dir%", "%App_Dir%", ...) that stored paths carry instead of the real
// directories, so that settings survive a move of the installation or the user directory.
#pragma once

#include <string>

#include "settings/UserDirectories.h"

// Environment variables first, then each token in its fixed order; tokens are matched with case.
std::wstring ExpandDirectoryMacros(const std::wstring& text, UserDirectories& directories);
// The first token (in the same order) whose directory occurs in the text, in any letter case, is put
// in; then environment variables as TextToEnvironmentPath does.
std::wstring TextToMacroPath(const std::wstring& text, UserDirectories& directories);
// Known environment variables put in for their values, the longest value first.
std::wstring TextToEnvironmentPath(const std::wstring& text);
