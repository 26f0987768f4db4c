#include "platform/fake/FakeShellNamespace.h"

#include "services/CRuntime.h"

namespace platform::fake {

FakeShellNamespace::FakeShellNamespace()
    : columns{{L"Name", 30}, {L"Size", 10}, {L"Type", 20}, {L"Date modified", 20}},
      knownFolders{{L"b4bfcc3a-db2c-424c-b029-7fe99a87c641", L"Desktop"},
                   {L"fdd39ad0-238f-46af-adb4-6c85480369c7", L"Personal"}} {}

std::optional<std::wstring> FakeShellNamespace::InFolderName(const std::wstring& parsingPath) {
    const auto known = names.find(parsingPath);
    if (known == names.end()) return std::nullopt;
    return known->second;
}

std::optional<std::wstring> FakeShellNamespace::AddressBarName(const std::wstring& path) {
    const auto known = addressNames.find(path);
    if (known == addressNames.end()) return std::nullopt;
    return known->second;
}

std::optional<std::wstring> FakeShellNamespace::KnownFolderName(const std::wstring& id) {
    const std::wstring wanted = crt::MakeUpper(id);
    for (const KnownFolder& folder : knownFolders)
        if (crt::MakeUpper(folder.id) == wanted) return folder.name;
    return std::nullopt;
}

}  // namespace platform::fake
