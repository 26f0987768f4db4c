// A shell for tests: the columns and folder names a test gives it.
#pragma once

#include <map>

#include "platform/ShellNamespace.h"

namespace platform::fake {

class FakeShellNamespace : public ShellNamespace {
public:
    // Starts with the four columns every desktop has first and two known folders.
    FakeShellNamespace();

    std::vector<ShellColumn> DesktopColumns() override { return columns; }
    std::optional<std::wstring> InFolderName(const std::wstring& parsingPath) override;
    std::optional<std::wstring> AddressBarName(const std::wstring& path) override;
    std::vector<KnownFolder> KnownFolders() override { return knownFolders; }
    std::optional<std::wstring> KnownFolderName(const std::wstring& id) override;

    std::vector<ShellColumn> columns;
    // Parsing paths the shell knows, by their names in the folder; compared with case.
    std::map<std::wstring, std::wstring> names;
    // Paths the shell makes items of, with their address bar names; compared with case.
    std::map<std::wstring, std::wstring> addressNames;
    // Starts with the desktop and the documents folder.
    std::vector<KnownFolder> knownFolders;
};

}  // namespace platform::fake
