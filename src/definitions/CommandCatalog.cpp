#include "definitions/CommandCatalog.h"

#include "definitions/CommandListFile.h"
#include "platform/Platform.h"
#include "services/Format.h"
#include "services/LanguageResources.h"

int CommandCatalog::LoadCommandLists(const std::wstring& userDirectory) {
    int stored = 0;
    for (const wchar_t* name : kCommandListFiles) {
        std::wstring path = userDirectory + name;
        std::vector<CommandListEntry> entries;
        if (!ReadCommandList(path, entries)) {
            platform::Current().prompts.ShowMessage(L"Cannot open " + path, platform::kStyleOk);
            continue;
        }
        for (CommandListEntry& entry : entries) {
            // Identifiers are 16 bits: 65537 lands on 1.
            entries_[static_cast<uint16_t>(entry.id)] = std::move(entry.comment);
            ++stored;
        }
    }
    return stored;
}

std::wstring CommandCatalog::LookupListedCommand(uint16_t id) const {
    auto found = entries_.find(id);
    return found == entries_.end() ? std::wstring() : found->second;
}

std::wstring CommandCatalog::GetCommandString(uint16_t id, const platform::ResourceLibrary* library) const {
    for (const NumberedRange& range : kNumberedRanges) {
        if (id < range.first || id > range.last) continue;
        std::wstring listed = LookupListedCommand(id);
        if (!listed.empty()) return listed;
        std::wstring format = LoadLanguageString(library, range.format);
        return crt::Format(format.c_str(), static_cast<int32_t>(id) - range.shownBase);
    }
    if (id == kNoCommand) return kNoCommandText;
    std::wstring text = CommandTextOf(LoadLanguageString(library, id));
    return text.empty() ? kUnknownText : text;
}

std::vector<std::pair<uint16_t, std::wstring>> CommandCatalog::ListedCommands(uint16_t first, uint16_t last) const {
    std::vector<std::pair<uint16_t, std::wstring>> listed;
    for (auto it = entries_.lower_bound(first); it != entries_.end() && it->first <= last; ++it) {
        listed.emplace_back(it->first, it->second);
    }
    return listed;
}
