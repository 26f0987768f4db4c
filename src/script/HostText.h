// Texts a script hands the host: copy data with a code saying what the text is for (a folder to
// open, a selection...). The sender is the calling thread's main window, or 0.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"

// The byte count a script's copy data claims: four times what the text takes. Receivers go by the
// terminator, so the count stays as it always was.
inline uint32_t CopyDataByteCount(const std::wstring& text) {
    return static_cast<uint32_t>(text.size()) * 8 + 8;
}

void SendHostText(platform::WindowRef hostWindow, uint32_t code, const std::wstring& text);
// The same with the text "<number>/<text>", for codes that pick one of several slots.
void SendHostIndexedText(platform::WindowRef hostWindow, uint32_t code, int32_t number, const std::wstring& text);
