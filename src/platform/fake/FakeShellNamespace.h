// A shell for tests: the columns and folder names a test gives it.
#pragma once

#include <map>

#include "platform/ShellNamespace.h"

namespace platform::fake {

class FakeShellNamespace : public ShellNamespace {
public:
    // Starts with the four columns every desktop has first.
    FakeShellNamespace();

    std::vector<ShellColumn> DesktopColumns() override { return columns; }
    std::optional<std::wstring> InFolderName(const std::wstring& parsingPath) override;

    std::vector<ShellColumn> columns;
    // Parsing paths the shell knows, by their names in the folder; compared with case.
    std::map<std::wstring, std::wstring> names;
};

}  // namespace platform::fake
