#pragma once

#include "platform/ShellNamespace.h"

namespace platform::win32 {

class Win32ShellNamespace : public ShellNamespace {
public:
    std::vector<ShellColumn> DesktopColumns() override;
    std::optional<std::wstring> InFolderName(const std::wstring& parsingPath) override;
    std::optional<std::wstring> AddressBarName(const std::wstring& path) override;
    std::vector<KnownFolder> KnownFolders() override;
    std::optional<std::wstring> KnownFolderName(const std::wstring& id) override;
};

}  // namespace platform::win32
