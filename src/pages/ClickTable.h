// What a click does, by button and modifier: each row is one setting holding an index into the page's
// list of actions. The file list, the bars, the tabs and the tree keep such tables, each with its own
// rows and actions.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "settings/SettingsStore.h"

struct ClickRow {
    int32_t SettingsStore::*member;
    std::wstring label;
};

// One button's four rows, in the modifier order none, Ctrl, Shift, Ctrl+Shift.
constexpr int kClickModifiers = 4;
struct ClickGroup {
    std::wstring name;
    std::array<int32_t SettingsStore::*, kClickModifiers> members;
};

// The rows of the groups, each labelled with its group's name followed directly by its modifier's
// name; a modifier name that is missing reads as empty.
std::vector<ClickRow> ClickRowsOf(std::span<const ClickGroup> groups, const std::vector<std::wstring>& modifierNames);

class ClickTable {
public:
    ClickTable() = default;
    ClickTable(std::vector<ClickRow> rows, std::vector<std::wstring> actions);
    // A table whose settings hold a code per action (the host's command number) rather than the
    // action's place in the list; codes and actions pair up by position, and must be as many.
    ClickTable(std::vector<ClickRow> rows, std::vector<std::wstring> actions, std::vector<int32_t> codes);

    // Takes the stored values. Without codes, one outside the actions throws std::invalid_argument:
    // such a value means the table and the host disagree, and the table is not to be shown half right.
    // With codes, a code the list lacks shows as the first action, which the next Store writes.
    void Load(const SettingsStore& store);
    void Store(SettingsStore& store) const;

    size_t size() const { return rows_.size(); }
    const std::wstring& Label(size_t row) const { return rows_.at(row).label; }
    int32_t Value(size_t row) const { return values_.at(row); }
    const std::wstring& ActionText(size_t row) const { return actions_.at(static_cast<size_t>(values_.at(row))); }
    const std::vector<std::wstring>& actions() const { return actions_; }
    // Throws std::invalid_argument for an action outside the list.
    void Set(size_t row, int32_t action);
    // Exchanges the values of count rows from first with those of the rows from second, row by row.
    void SwapRows(size_t first, size_t second, size_t count);

private:
    int32_t Checked(int32_t action) const;

    std::vector<ClickRow> rows_;
    std::vector<std::wstring> actions_;
    std::vector<int32_t> codes_;
    std::vector<int32_t> values_;
};
