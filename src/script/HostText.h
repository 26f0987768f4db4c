// Texts a script hands the host: copy data with a code saying what the text is for (a folder to
// open, a selection...). The sender is the calling thread's main window, or 0.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"

void SendHostText(platform::WindowRef hostWindow, uint32_t code, const std::wstring& text);
