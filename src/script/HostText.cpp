#include "script/HostText.h"

#include "platform/Platform.h"

void SendHostText(platform::WindowRef hostWindow, uint32_t code, const std::wstring& text) {
    platform::HostWindows& windows = platform::Current().windows;
    // Four times what the text takes; receivers go by the terminator, so the count stays as it always was.
    const uint32_t byteCount = static_cast<uint32_t>(text.size()) * 8 + 8;
    windows.SendCopyData(hostWindow, windows.MainWindow(), code, text, byteCount);
}
