#include "script/HostText.h"

#include "platform/Platform.h"

void SendHostText(platform::WindowRef hostWindow, uint32_t code, const std::wstring& text) {
    platform::HostWindows& windows = platform::Current().windows;
    windows.SendCopyData(hostWindow, windows.MainWindow(), code, text, CopyDataByteCount(text));
}
