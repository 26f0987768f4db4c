// Every definition and list file the program writes goes out through here, so that no failure
// (a full disk, a file held by another program, a killed process) leaves a file half written.
#pragma once

#include <cstdint>
#include <span>
#include <string>

// Where the bytes wait before they take the file's place: beside it, so that the last step is a
// rename within one directory.
std::wstring TemporaryPathFor(const std::wstring& path);

// Writes the bytes to the temporary file, pushes them onto the disk and then puts that file in the
// path's place in one step. When any step fails the temporary file is removed, a file already at
// the path stays as it was, and the result is false. Both paths go through the long-path form.
bool WriteWholeFile(const std::wstring& path, std::span<const uint8_t> bytes);
