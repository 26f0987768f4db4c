#pragma once

#include "platform/System.h"

namespace platform::win32 {

class Win32System : public System {
public:
    std::unique_ptr<SystemObject> CreatePresenceMutex(const std::wstring& name) override;
    std::unique_ptr<ResourceLibrary> LoadDataLibrary(const std::wstring& path) override;
    LoadedLibrary LoadCodeLibrary(const std::wstring& path) override;
    void FreeUnusedLibraries() override;
    bool SetClipboardText(const std::wstring& text) override;
    bool ClipboardAnsiText(std::string& text) override;
};

}  // namespace platform::win32
