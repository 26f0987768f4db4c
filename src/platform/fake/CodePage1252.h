// The single-byte code page the fakes take for the thread's ANSI code page: Windows-1252, the western
// European one. Unlike the system, which finds a close letter for some characters it lacks ("best
// fit"), every character outside the code page becomes "?".
#pragma once

#include <string>

namespace platform::fake {

std::string ToCodePage1252(const std::wstring& text);
std::wstring FromCodePage1252(const std::string& bytes);

}  // namespace platform::fake
