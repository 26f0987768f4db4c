// Every settings group against whatever registry the platform gives, the fake or the real one.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>

#include "platform/Platform.h"
#include "settings/SettingsGroups.h"
#include "settings/SettingsStore.h"

#include "unit/settings/RegistryValues.h"

// Every section a group may touch, and one it must not.
inline std::map<std::wstring, NamedValues> AllSections() {
    std::map<std::wstring, NamedValues> all;
    for (const wchar_t* section :
         {L"AppInfo",  L"Settings",   L"Mouse",        L"Event",        L"Sound",    L"ListInit",
          L"ListDraw", L"ListAction", L"ListNoUpdate", L"ListMouse",    L"Color",    L"ViewFont",
          L"Thumb",    L"Detail",     L"TreeInfo",     L"TabStyle",     L"UBar",     L"Bar",
          L"PreView",  L"Recent",     L"FolderInfo",   L"FolderInfoEx", L"Elsewhere"})
        all[section] = ValuesOf(section);
    return all;
}

inline void ClearSections() {
    for (const auto& [section, values] : AllSections())
        platform::Current().registry.DeleteKey(SettingsStore::kSectionRoot + section);
}

// Each routine selects its own section: nothing may depend on what was selected before.
inline void LoadAndSave(SettingsStore& store, SettingsGroup group, const std::function<void()>& between = {}) {
    store.SelectSection(L"Elsewhere");
    LoadGroup(store, group);
    if (between) between();
    store.SelectSection(L"Elsewhere");
    SaveGroup(store, group);
}

// Every value is bound to a member of its own, and no other value or section is touched; a list read to
// its end gains only its empty end mark.
inline void ExpectEveryGroupWritesBackWhatTheHostStored() {
    // Values that only keep some of their bits, stored as the host would store them.
    const std::map<std::wstring, int32_t> kept = {
        {L"ContextMenu", 0x33333A5C}, {L"Thumb", 2}, {L"ListCtrls", 5}, {L"ListViewOtherStyle", 4}};
    for (int number = 0; number < kSettingsGroups; ++number) {
        const auto group = static_cast<SettingsGroup>(number);
        SCOPED_TRACE(number);
        ClearSections();
        SettingsStore first;
        LoadAndSave(first, group);
        std::map<std::wstring, NamedValues> stored = AllSections();
        EXPECT_TRUE(stored[L"Elsewhere"].empty());
        int count = 0;
        for (auto& [section, values] : stored) {
            int n = 0;  // distinct in a section, and small enough for a font's byte fields
            for (auto& [name, value] : values) {
                ++n;
                if (!std::holds_alternative<int32_t>(value))
                    value = L"text " + std::to_wstring(n);
                else
                    value = kept.contains(name) ? kept.at(name) : 100 + n;
                StoreValue(section, name, value);
            }
            count += n;
        }
        EXPECT_EQ(group == SettingsGroup::StartUp || group == SettingsGroup::FolderInfo, count == 0)
            << "only the start-up values and an empty folder list write nothing";
        SettingsStore store;
        LoadAndSave(store, group);
        std::map<std::wstring, NamedValues> after = AllSections();
        for (auto& [section, values] : after)
            std::erase_if(values, [&](const auto& named) {
                return named.second == Stored(L"") &&
                       std::ranges::none_of(stored[section], [&](const auto& old) { return old.first == named.first; });
            });
        EXPECT_EQ(stored, after);
    }
}
