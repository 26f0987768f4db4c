// Pictures of what the screen shows, for people to look at: 24-bit BMP files.
#pragma once

#include <windows.h>

#include <string>

namespace e2e {

// A rectangle of the screen; false when it could not be read or written.
bool CaptureRect(const RECT& rect, const std::wstring& path);
// The window's rectangle as the screen shows it.
bool CaptureWindow(HWND window, const std::wstring& path);
// Where the tests leave their pictures, build/screenshots beside the stage, made when missing.
std::wstring PicturePath(const wchar_t* name);

}  // namespace e2e
