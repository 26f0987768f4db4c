// A settings group declared as data: one row per registry value, in the order the host's own Load and
// Save touch them. Load reads every row over its default; Save writes the rows marked saved, in the
// same order, so the order of values created in a fresh key is the order of the rows.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "settings/SettingsStore.h"

// No: read for its member and left in the registry as it stands (the host owns it).
enum class Saved : bool { No, Yes };

struct SettingRow {
    const wchar_t* name;
    int32_t SettingsStore::*integer;  // exactly one of the two members is set
    std::wstring SettingsStore::*text;
    int32_t integerDefault;
    const wchar_t* textDefault;
    Saved saved;
};

constexpr SettingRow IntRow(const wchar_t* name, int32_t SettingsStore::*member, int32_t defaultValue,
                            Saved saved = Saved::Yes) {
    return {name, member, nullptr, defaultValue, L"", saved};
}

constexpr SettingRow TextRow(const wchar_t* name, std::wstring SettingsStore::*member, const wchar_t* defaultText,
                             Saved saved = Saved::Yes) {
    return {name, nullptr, member, 0, defaultText, saved};
}

// The rows of one section.
struct SectionRows {
    const wchar_t* section;
    std::span<const SettingRow> rows;
};

void LoadRows(SettingsStore& store, const SectionRows& part);
void SaveRows(SettingsStore& store, const SectionRows& part);
