// What the folder tree page decides: the actions of a click on a folder of the tree, and the roots of
// the tree, each stored as a path or as the identifier of one of the system's known folders and shown
// by its name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pages/ClickTable.h"
#include "platform/ShellNamespace.h"
#include "settings/ListValues.h"

// Enter, left click and middle click, named by the parts of the option dialog's button names, each in
// the modifier order none, Ctrl, Shift, Ctrl+Shift.
std::vector<ClickGroup> TreeClickGroups(const std::vector<std::wstring>& buttonNames);
// The table of those twelve rows over the page's action labels.
ClickTable MakeTreeClickTable(const std::vector<std::wstring>& buttonNames,
                              const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> actionLabels);

// The system's known folders, asked for once and kept: upper-case identifiers and names side by side
// in the order the shell gave them. Reading them all takes long enough to be felt, so only the root
// dialog, which offers them all, asks for them.
class KnownFolderCatalog {
public:
    // Asks the shell the first time; later calls keep what was read.
    void Build(platform::ShellNamespace& shell);
    bool ready() const { return ready_; }
    const std::vector<std::wstring>& ids() const { return ids_; }
    const std::vector<std::wstring>& names() const { return names_; }
    // Throws std::invalid_argument for an index outside the lists.
    platform::KnownFolder At(int index) const;

private:
    std::vector<std::wstring> ids_;
    std::vector<std::wstring> names_;
    bool ready_ = false;
};

// A root as the page's list shows it: the name, and the text that is stored.
struct TreeRoot {
    std::wstring name;
    std::wstring text;
    bool operator==(const TreeRoot&) const = default;
};

// Whether the text has the form of a bare identifier, "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX" in
// hexadecimal digits of either case.
bool IsIdentifierText(const std::wstring& text);

// A stored root as the list shows it. A text beginning with ":" or "{" (a shell path "::{...}" or a
// braced identifier) loses every ":", "{" and "}", and keeps that form from then on. An identifier is
// named by the shell's known folder of that identifier, anything else is a path named as the address
// bar shows it. A root that cannot be named has no row (and so is not stored again).
std::optional<TreeRoot> ResolveTreeRoot(const std::wstring& stored, platform::ShellNamespace& shell);

// The roots of the page's list.
class TreeRootList {
public:
    static constexpr size_t kLimit = 30;

    void Load(const TextList& stored, platform::ShellNamespace& shell);
    const std::vector<TreeRoot>& rows() const { return rows_; }
    bool Full() const { return rows_.size() >= kLimit; }
    TextList Texts() const;

    // Inserts before the row, or at the end for -1; the new row.
    int Insert(int row, TreeRoot root);
    // Removes the row; the row to select next, the last when the end was removed (-1 when none).
    int Remove(int row);
    // Swaps the row with its neighbour above (-1) or below (+1); the row it went to, -1 when it
    // cannot move.
    int Move(int row, int step);

private:
    std::vector<TreeRoot> rows_;
};
