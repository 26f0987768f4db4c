// The shell namespace as the folder pages need it: the detail columns of the desktop folder, the
// names of virtual folders and the system's known folders.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// One column the desktop folder offers for its details view.
struct ShellColumn {
    std::wstring title;
    int32_t charWidth = 0;  // the header's width in characters
    bool operator==(const ShellColumn&) const = default;
};

// One of the system's known folders: its identifier in hexadecimal groups without braces, and its
// canonical name.
struct KnownFolder {
    std::wstring id;
    std::wstring name;
    bool operator==(const KnownFolder&) const = default;
};

class ShellNamespace {
public:
    ShellNamespace() = default;
    ShellNamespace(const ShellNamespace&) = delete;
    ShellNamespace& operator=(const ShellNamespace&) = delete;
    virtual ~ShellNamespace() = default;

    // IShellFolder2::GetDetailsOf of the desktop without an item, for columns 0, 1, ... up to the
    // first that fails.
    virtual std::vector<ShellColumn> DesktopColumns() = 0;
    // The name a parsing path ("::{...}" and the like) shows in its folder (SHGDN_INFOLDER); nullopt
    // when the shell does not know the path.
    virtual std::optional<std::wstring> InFolderName(const std::wstring& parsingPath) = 0;
    // The name the address bar shows for a path (SHGDN_FORADDRESSBAR); nullopt when the shell cannot
    // make an item of it.
    virtual std::optional<std::wstring> AddressBarName(const std::wstring& path) = 0;
    // Every known folder the known-folder manager lists, in its order. One it cannot describe is left
    // out; without a manager the list is empty.
    virtual std::vector<KnownFolder> KnownFolders() = 0;
    // The canonical name of the one known folder with this identifier (hexadecimal groups without
    // braces, either case), as KnownFolders names it; nullopt when the manager does not know it.
    virtual std::optional<std::wstring> KnownFolderName(const std::wstring& id) = 0;
};

}  // namespace platform
