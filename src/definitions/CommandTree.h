// The tree of the command picker: the language library's main menu and command menu, the operations
// of the nine user bars and the six groups of external commands, and on request the commands only the
// bars' menu files offer. While it fills, every command of the menus and groups can add a row to the
// AllCommand dump.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "definitions/CommandCatalog.h"
#include "platform/ResourceLibrary.h"

// Pictures of the tree, by their index in the picker's image list.
enum class CommandImage { ClosedGroup = 0, OpenGroup = 1, Command = 2, ListedCommand = 4, DialogCommand = 5 };

struct CommandNode {
    std::wstring text;
    uint16_t id = 0;  // 0 for a group
    CommandImage image = CommandImage::ClosedGroup;
    std::vector<CommandNode> children;

    bool operator==(const CommandNode&) const = default;
};

struct CommandTreeSources {
    const CommandCatalog& catalog;
    const platform::ResourceLibrary* library;  // none: no menu branches
    // The picker's hidden labels that head the branches: main menu, user bars, external commands, bar menus.
    std::wstring labels[4];
    // The folder of the bars' menu files, with its backslash; empty when bar commands are not wanted.
    std::wstring barMenuFolder;
};

// The AllCommand dump of one opening of the picker.
struct CommandTreeDump {
    std::function<bool()> altDown;  // read again for every row: it picks the row's form
    // Told of an html row whose command has no text, before the row is added.
    std::function<void(const std::wstring& message)> tellMissing;
    std::wstring text = L"\xFEFF";
};

// The top-level nodes in the order the picker shows them. dump may be null (no key was held).
std::vector<CommandNode> BuildCommandTree(const CommandTreeSources& sources, CommandTreeDump* dump);
