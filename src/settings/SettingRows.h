// A settings group declared as data: one row per registry value (or numbered list of values), in the
// order the host's own Load and Save touch them. Load reads every row over its default; Save writes
// the rows marked saved, in the same order, so the order of values created in a fresh key is the
// order of the rows. Every default, range and asymmetry of a value is a column of its row.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "settings/SettingsGroups.h"
#include "settings/SettingsStore.h"

// No: read for its member and left in the registry as it stands (the host owns it).
enum class Saved : bool { No, Yes };

struct SettingRow {
    // The value's name; for a list, the format of the name of entry n ("TopNode%d").
    const wchar_t* name;
    // Exactly one of these is set. A row with an integer member and no name sets its member on Load
    // and touches no registry value.
    int32_t SettingsStore::*integer = nullptr;
    std::wstring SettingsStore::*text = nullptr;
    LogFont SettingsStore::*font = nullptr;         // the twelve font values of the section
    TextList SettingsStore::*list = nullptr;        // "0", "1", ... up to the first absent or empty value
    PathStateList SettingsStore::*pairs = nullptr;  // as list, with a state value beside each path
    int32_t integerDefault = 0;
    // For a list, the one entry it holds when the registry gives none (null: it stays empty).
    const wchar_t* textDefault = L"";
    Saved saved = Saved::Yes;
    // The default is the value just read into this member, not integerDefault.
    int32_t SettingsStore::*defaultFrom = nullptr;
    // The default is the system colour of this index (GetSysColor), not integerDefault.
    int32_t systemColour = -1;
    // Bits kept of the value read; bits written are writeBase | (member & writeKeep).
    uint32_t readKeep = ~0u;
    uint32_t writeKeep = ~0u;
    uint32_t writeBase = 0;
    // The range a page accepts (low > high: any value).
    int32_t low = 1;
    int32_t high = 0;
    bool trimmed = false;  // text read with white space trimmed from both ends
    // A list: the format of the state value's name, entries read at most, entries written at most.
    const wchar_t* stateName = nullptr;
    uint32_t readLimit = UINT32_MAX;
    uint32_t writeLimit = UINT32_MAX;

    constexpr SettingRow Range(int32_t from, int32_t to) const {
        return With(&SettingRow::low, from).With(&SettingRow::high, to);
    }
    constexpr SettingRow DefaultFrom(int32_t SettingsStore::*member) const {
        return With(&SettingRow::defaultFrom, member);
    }
    constexpr SettingRow SystemColour(int32_t index) const { return With(&SettingRow::systemColour, index); }
    // Only these bits are used, on read and on write.
    constexpr SettingRow Keep(uint32_t bits) const { return With(&SettingRow::readKeep, bits).Writes(bits); }
    // Save forms the value anew from these bits of the member, over base.
    constexpr SettingRow Writes(uint32_t keep, uint32_t base = 0) const {
        return With(&SettingRow::writeKeep, keep).With(&SettingRow::writeBase, base);
    }
    constexpr SettingRow Trimmed() const { return With(&SettingRow::trimmed, true); }
    constexpr SettingRow Limits(uint32_t reads, uint32_t writes) const {
        return With(&SettingRow::readLimit, reads).With(&SettingRow::writeLimit, writes);
    }

private:
    template <typename Field, typename Value>
    constexpr SettingRow With(Field SettingRow::*field, Value value) const {
        SettingRow row = *this;
        row.*field = value;
        return row;
    }
};

constexpr SettingRow IntRow(const wchar_t* name, int32_t SettingsStore::*member, int32_t defaultValue,
                            Saved saved = Saved::Yes) {
    return {.name = name, .integer = member, .integerDefault = defaultValue, .saved = saved};
}

constexpr SettingRow TextRow(const wchar_t* name, std::wstring SettingsStore::*member, const wchar_t* defaultText,
                             Saved saved = Saved::Yes) {
    return {.name = name, .text = member, .textDefault = defaultText, .saved = saved};
}

// A member the Load sets with no registry value behind it.
constexpr SettingRow ForcedRow(int32_t SettingsStore::*member, int32_t value) {
    return {.name = nullptr, .integer = member, .integerDefault = value, .saved = Saved::No};
}

constexpr SettingRow FontRow(LogFont SettingsStore::*member, Saved saved) {
    return {.name = nullptr, .font = member, .saved = saved};
}

// Save writes every entry (up to the write limit) and then one empty value as the end mark, so that
// a shorter list hides the older tail without deleting it.
constexpr SettingRow ListRow(const wchar_t* format, TextList SettingsStore::*member,
                             const wchar_t* whenEmpty = nullptr) {
    return {.name = format, .list = member, .textDefault = whenEmpty};
}

constexpr SettingRow PairListRow(const wchar_t* pathFormat, const wchar_t* stateFormat,
                                 PathStateList SettingsStore::*member, uint32_t limit) {
    const SettingRow row{.name = pathFormat, .pairs = member, .textDefault = nullptr, .stateName = stateFormat};
    return row.Limits(limit, limit);
}

// The rows of one section.
struct SectionRows {
    const wchar_t* section;
    std::span<const SettingRow> rows;
};

void LoadRows(SettingsStore& store, const SectionRows& part);
void SaveRows(SettingsStore& store, const SectionRows& part);
// A group: its sections in the order they are read and written, and the steps around the rows.
struct GroupRows {
    SettingsGroup group;
    std::span<const SectionRows> parts;
    void (*afterLoad)(SettingsStore&) = nullptr;
    void (*afterSave)(SettingsStore&) = nullptr;
};

// The tables of the groups, each in the order of SettingsGroup.
std::span<const GroupRows> ApplicationGroupRows();
std::span<const GroupRows> ListGroupRows();
std::span<const GroupRows> BarGroupRows();
