// The words no variable may be named, in any letter case.
#pragma once

#include <string>

// The whole name is compared; "iffy" is a fine name.
bool IsReservedWord(const std::wstring& name);
