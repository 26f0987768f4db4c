// The values of a settings section as the host reads them: names in the order the registry holds them,
// each a number (DWORD) or a text (any other type, read up to its terminator).
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Platform.h"
#include "settings/SettingsStore.h"

using Stored = std::variant<int32_t, std::wstring>;
using NamedValues = std::vector<std::pair<std::wstring, Stored>>;

inline NamedValues ValuesOf(const std::wstring& section) {
    NamedValues values;
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.OpenKey(SettingsStore::kSectionRoot + section, key) != 0) return values;
    std::wstring name;
    uint32_t type = 0;
    std::vector<uint8_t> data(4096);
    for (uint32_t index = 0;; ++index) {
        uint32_t size = static_cast<uint32_t>(data.size());
        if (key->EnumValue(index, platform::kMaxValueNameChars, name, &type, data.data(), &size) != 0) break;
        if (type == platform::kRegDword) {
            values.emplace_back(name, static_cast<int32_t>(data[0] | data[1] << 8 | data[2] << 16 |
                                                           static_cast<uint32_t>(data[3]) << 24));
            continue;
        }
        std::wstring text;
        for (uint32_t i = 0; i + 1 < size && (data[i] || data[i + 1]); i += 2)
            text.push_back(static_cast<wchar_t>(data[i] | data[i + 1] << 8));
        values.emplace_back(name, text);
    }
    return values;
}

// Puts a value where the host would have left it, through a store of its own.
inline void StoreValue(const std::wstring& section, const std::wstring& name, const Stored& value) {
    SettingsStore other;
    other.SelectSection(section);
    if (auto* number = std::get_if<int32_t>(&value))
        other.WriteInt(name, *number);
    else
        other.WriteString(name, std::get<std::wstring>(value));
}
