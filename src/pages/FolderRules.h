// The folder rules of the folder settings page, in the three lists the host tries from fast to
// slow: exact paths, wildcard patterns and regular expressions. The page shows these rows as they
// stand; every rule keeps the state string it was read with until the user edits it, so that what
// the host stored in its own fields survives.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "pages/FolderState.h"
#include "settings/SettingsStore.h"

enum class RuleKind : int { Exact = 0, Wildcard = 1, Regex = 2 };
constexpr int kRuleKinds = 3;

// How many rules of a kind the add buttons accept. A request from the host is not held to it.
size_t RuleLimit(RuleKind kind);

// One row as the lists show it.
struct RuleRow {
    std::wstring shown;  // the path, or the shell's name of a virtual folder (exact rules only)
    std::wstring path;
    std::wstring state;
    bool operator==(const RuleRow&) const = default;
};

class FolderRules {
public:
    // The exact rules from every value of "FolderInfo", the others from "FolderInfoEx".
    void Load(SettingsStore& store);
    // Writes "FolderInfo" anew and the pattern lists from index 0, each closed by an empty pair.
    void Save(SettingsStore& store) const;

    const std::vector<RuleRow>& rows(RuleKind kind) const { return lists_[Index(kind)]; }
    bool Full(RuleKind kind) const { return rows(kind).size() >= RuleLimit(kind); }
    // The exact rule whose path equals path apart from case, other than row except; -1 for none.
    int FindExact(const std::wstring& path, int except = -1) const;

    // A new rule as the list's initial state would show the folder: the sort key starts at the
    // folders-first value rather than the initial sort, as users of the page have always seen it.
    static FolderState NewRule(const SettingsStore& store);
    // The rule of a row for editing; fields the row's string does not hold stay at zero.
    FolderState Rule(RuleKind kind, int row) const;

    // Lets the user settle the rule and its kind; false when the user cancelled.
    using RuleEditor = std::function<bool(RuleKind& kind, FolderState& rule)>;
    // The host's request to register a folder (a state string), offered as an exact rule. What the
    // user accepts goes in whatever the limits; the request is emptied either way, so it is asked
    // once. The kind of list that took the rule, or nullopt.
    std::optional<RuleKind> ServeHostRequest(std::wstring& request, const RuleEditor& edit);

    void Append(RuleKind kind, const FolderState& rule);
    void Update(RuleKind kind, int row, const FolderState& rule);
    // Removes the row; the row to select next (-1 when the list is empty).
    int Remove(RuleKind kind, int row);
    // Swaps the row with its neighbour above (-1) or below (+1); the row it went to, or -1 when it
    // could not move.
    int Move(RuleKind kind, int row, int step);

private:
    static size_t Index(RuleKind kind) { return static_cast<size_t>(kind); }
    // Reads the state as the page's one set of scratch fields: a string too short to read shows the
    // path of the row read before it.
    RuleRow MakeRow(RuleKind kind, const std::wstring& state);

    std::array<std::vector<RuleRow>, kRuleKinds> lists_;
    FolderState scratch_;
};
