#include "settings/SettingRows.h"

#include <algorithm>

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

std::wstring EntryName(const wchar_t* format, size_t n) {
    return crt::Format(format, static_cast<int>(n));
}

int32_t IntegerDefault(const SettingsStore& store, const SettingRow& row) {
    if (row.defaultFrom) return store.*row.defaultFrom;
    if (row.systemColour >= 0) return platform::Current().environment.SysColor(row.systemColour);
    return row.integerDefault;
}

// Entries from 0 up to the first empty path or the read limit.
void LoadList(SettingsStore& store, const SettingRow& row) {
    TextList entries;
    PathStateList pairs;
    for (size_t n = 0; n < row.readLimit; ++n) {
        std::wstring path = store.ReadString(EntryName(row.name, n), L"");
        if (path.empty()) break;
        if (row.list) {
            entries.push_back(std::move(path));
            continue;
        }
        std::wstring state = store.ReadString(EntryName(row.stateName, n), L"");
        pairs.push_back({std::move(path), std::move(state)});
    }
    if (row.list) {
        if (entries.empty() && row.textDefault) entries.emplace_back(row.textDefault);
        store.*row.list = std::move(entries);
    } else {
        store.*row.pairs = std::move(pairs);
    }
}

// The entries up to the write limit, then one empty entry as the end mark.
void SaveList(SettingsStore& store, const SettingRow& row) {
    const size_t count =
        std::min<size_t>(row.writeLimit, row.list ? (store.*row.list).size() : (store.*row.pairs).size());
    for (size_t n = 0; n <= count; ++n) {
        if (row.list) {
            store.WriteString(EntryName(row.name, n), n < count ? (store.*row.list)[n] : L"");
            continue;
        }
        const PathState& pair = n < count ? (store.*row.pairs)[n] : PathState{};
        store.WriteString(EntryName(row.name, n), pair.path);
        store.WriteString(EntryName(row.stateName, n), pair.state);
    }
}

}  // namespace

void LoadRows(SettingsStore& store, const SectionRows& part) {
    store.SelectSection(part.section);
    for (const SettingRow& row : part.rows) {
        if (row.font) {
            store.ReadFont(store.*row.font);
        } else if (row.list || row.pairs) {
            LoadList(store, row);
        } else if (row.text) {
            std::wstring text = store.ReadString(row.name, row.textDefault);
            store.*row.text = row.trimmed ? crt::Trim(text) : std::move(text);
        } else if (!row.name) {
            store.*row.integer = row.integerDefault;
        } else {
            const auto value = static_cast<uint32_t>(store.ReadInt(row.name, IntegerDefault(store, row)));
            store.*row.integer = static_cast<int32_t>(value & row.readKeep);
        }
    }
}

void SaveRows(SettingsStore& store, const SectionRows& part) {
    store.SelectSection(part.section);
    for (const SettingRow& row : part.rows) {
        if (row.saved == Saved::No) continue;
        if (row.font) {
            store.WriteFont(store.*row.font);
        } else if (row.list || row.pairs) {
            SaveList(store, row);
        } else if (row.text) {
            store.WriteString(row.name, store.*row.text);
        } else {
            const uint32_t value = row.writeBase | (static_cast<uint32_t>(store.*row.integer) & row.writeKeep);
            store.WriteInt(row.name, static_cast<int32_t>(value));
        }
    }
}
