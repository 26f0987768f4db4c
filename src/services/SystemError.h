// The system's own text for a failed call, shown to the user.
#pragma once

#include <cstdint>
#include <string>

// Nothing for error 0. Otherwise the system's text for the code in a message box of style 0, with
// the caption as a first line when one is given.
void ShowSystemError(uint32_t error, const std::wstring& caption = L"");
