// What the two drop combos of the common operation page offer: the shell's own copy or move, in the
// background or waiting, then every external command the user's lists name, and which one stands
// for the stored value.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

class CommandCatalog;

enum class DropKind { Copy, Move };

struct DropChoice {
    std::wstring text;
    int32_t command;  // what is stored when the choice is taken
};

struct DropChoices {
    std::vector<DropChoice> items;
    int selected = 0;
};

// The stored 0 is the first shell item; any other value the second, unless a listed command has
// that number: a command that no longer exists falls back to the second shell item.
DropChoices MakeDropChoices(DropKind kind, const CommandCatalog& commands, int32_t stored);
