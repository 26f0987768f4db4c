// Existence and attributes of files, through the long-path form.
#pragma once

#include <cstdint>
#include <string>

#include "platform/FileSystem.h"

// True when a file or directory of that name exists (the path less its trailing separator is searched for).
bool FileExists(const std::wstring& path);
// The faster search with large fetch, or the plain one on the shells of the early 2000s that lack it.
platform::FindStyle SearchStyle();
