// The manual installed beside the program, opened by the shell at one of its pages.
#pragma once

#include <string>

// page is a web-style relative path such as "5.Function/00.html"; applicationRoot ends in a backslash.
void OpenHelpPage(const std::wstring& applicationRoot, std::wstring page);
