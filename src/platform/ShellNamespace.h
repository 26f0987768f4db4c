// The shell namespace as the folder pages need it: the detail columns of the desktop folder and the
// names of virtual folders.
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
};

}  // namespace platform
