#include "platform/fake/FakeShellNamespace.h"

namespace platform::fake {

FakeShellNamespace::FakeShellNamespace()
    : columns{{L"Name", 30}, {L"Size", 10}, {L"Type", 20}, {L"Date modified", 20}} {}

std::optional<std::wstring> FakeShellNamespace::InFolderName(const std::wstring& parsingPath) {
    const auto known = names.find(parsingPath);
    if (known == names.end()) return std::nullopt;
    return known->second;
}

}  // namespace platform::fake
