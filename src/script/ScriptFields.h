// The fields of a command's value or a function's arguments, taken off one at a time.
#pragma once

#include <string>

// Takes the text up to the first comma off text and returns it; text keeps what stands behind the
// comma. Without a comma the whole text is returned and stays, so a missing last field repeats the
// one before. Nothing is trimmed.
std::wstring PopField(std::wstring& text);
