// The details view's columns as the host shows them, and the sort list built on them. Both are made
// anew on every use, as the shell's columns and the host's "Detail" section may change meanwhile.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ShellNamespace.h"
#include "settings/SettingsStore.h"

// The twelve built-in sort keys lie below zero; key k is labelled by part ~k of the hidden label.
constexpr int kBuiltInSortKeys = 12;

// The groups of the sort list, by the ids their list view groups carry.
enum class SortGroup : int { System = 1, Visible = 2, Hide = 3 };

struct SortChoice {
    SortGroup group = SortGroup::System;
    std::wstring label;
    int32_t key = 0;
    bool operator==(const SortChoice&) const = default;
};

class CDetailData {
public:
    // Asks the shell for the desktop's columns and reads section "Detail" for each of them.
    void Load(SettingsStore& store);

    // One record per shell column, in column order: the host's position (Index), width and shown flag.
    const std::vector<DetailColumn>& records() const { return records_; }
    const std::vector<platform::ShellColumn>& shellColumns() const { return shellColumns_; }

    // "System": the built-in keys in the order users know them; "Visible": the shown columns in the
    // table's order; "Hide": the other columns in column order. Columns without a title, or that the
    // table does not hold, are left out. builtInLabels: the twelve parts of the hidden label.
    std::vector<SortChoice> SortChoices(const std::vector<std::wstring>& builtInLabels) const;
    // The group titles of the list view, by group.
    static const wchar_t* GroupTitle(SortGroup group);

private:
    std::vector<platform::ShellColumn> shellColumns_;
    std::vector<DetailColumn> records_;
};
