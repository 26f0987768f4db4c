#include "script/DirectoryItems.h"

#include "platform/Platform.h"
#include "services/FileTests.h"
#include "services/LongPath.h"
#include "services/PathHelpers.h"

namespace {

// A text with "/" in it is given U+008B where a backslash belongs: paths written that way carry it.
constexpr wchar_t kOddSeparator = 0x008B;

bool Wanted(ItemKind kind, uint32_t attributes) {
    const bool directory = (attributes & platform::kAttributeDirectory) != 0;
    switch (kind) {
        case ItemKind::Directories:
            return directory;
        case ItemKind::Files:
            return !directory;
        case ItemKind::All:
            break;
    }
    return true;
}

}  // namespace

size_t ListDirectoryItems(const std::wstring& pattern, ItemKind kind, SelectionList& list) {
    const size_t lastBackslash = pattern.rfind(L'\\');
    const std::wstring prefix =
        lastBackslash == std::wstring::npos ? std::wstring() : pattern.substr(0, lastBackslash + 1);
    std::wstring search = pattern;
    if (search.find_first_of(L"?*") == std::wstring::npos) {
        const wchar_t separator = search.find(L'/') != std::wstring::npos ? kOddSeparator : L'\\';
        if (search.empty() || search.back() != separator) search += separator;
        search += L'*';
    }
    const std::vector<platform::FindData> found =
        platform::Current().files.FindAll(ToLongPathForm(StripSeparator(search)), SearchStyle());
    if (found.empty()) return 0;
    for (const platform::FindData& entry : found) {
        if (list.size() >= kListedItemsLimit) break;
        if (entry.name == L"." || entry.name == L"..") continue;
        if (Wanted(kind, entry.attributes)) list.push_back(prefix + entry.name);
    }
    return list.size();
}
