#include "script/HostText.h"

#include "platform/Platform.h"
#include "services/Format.h"

void SendHostText(platform::WindowRef hostWindow, uint32_t code, const std::wstring& text) {
    platform::HostWindows& windows = platform::Current().windows;
    windows.SendCopyData(hostWindow, windows.MainWindow(), code, text, CopyDataByteCount(text));
}

void SendHostIndexedText(platform::WindowRef hostWindow, uint32_t code, int32_t number, const std::wstring& text) {
    SendHostText(hostWindow, code, crt::Format(L"%d/%s", number, text));
}
