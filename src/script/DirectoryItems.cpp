#include "script/DirectoryItems.h"

#include "platform/Platform.h"
#include "services/FileTests.h"
#include "services/LongPath.h"
#include "services/PathHelpers.h"

size_t ListDirectoryItems(const std::wstring& pattern, SelectionList& list) {
    const size_t lastBackslash = pattern.rfind(L'\\');
    const std::wstring prefix =
        lastBackslash == std::wstring::npos ? std::wstring() : pattern.substr(0, lastBackslash + 1);
    std::wstring search = pattern;
    // With "/" in the text the separator added is U+008B, a slip paths written that way carry.
    if (search.find_first_of(L"?*") == std::wstring::npos) search = AddSeparator(search) + L'*';
    const std::vector<platform::FindData> found =
        platform::Current().files.FindAll(ToLongPathForm(StripSeparator(search)), SearchStyle());
    if (found.empty()) return 0;
    // The limit counts what the list held before, and is looked at once an entry has had its turn.
    for (const platform::FindData& entry : found) {
        if (entry.name != L"." && entry.name != L"..") list.push_back(prefix + entry.name);
        if (list.size() >= kListedItemsLimit) break;
    }
    return list.size();
}
