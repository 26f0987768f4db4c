// Paths of 260 characters and more, and the short (8.3) names the system may hand out.
#pragma once

#include <string>

// Below 260 characters a path stays. From 260 on, "C:\..." becomes "\\?\C:\..." and "\\server\..."
// becomes "\\?\UNC\server\..."; anything else stays. Every file open goes through this.
std::wstring ToLongPathForm(const std::wstring& path);

// Drops a leading "\\?\UNC\", "\??\UNC\" or "\\?\"; then a path with a component that looks like a
// short name (a "~" and a digit among its first eight characters) is replaced by its long form.
std::wstring NormaliseLongName(const std::wstring& path);
