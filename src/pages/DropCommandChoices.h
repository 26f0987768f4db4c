// What the two drop combos of the common operation page offer. The template puts the shell's own
// copy or move first, in the background and then waiting, so that they are translated with the
// dialog; behind them come the external commands the user's lists name.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class CommandCatalog;

struct DropChoice {
    std::wstring text;
    int32_t command;  // what is stored when the choice is taken
};

// What the template's item at index stands for: 0 the shell in the background, 1 (any later item)
// the shell waiting.
int32_t ShellDropCommand(int index);

// The commands a drop may run, in list order: the last group of external commands, named ones only.
std::vector<DropChoice> DropCommands(const CommandCatalog& commands);

// The item that shows the stored value, given what each item of a combo stands for: the item of
// that value, or the waiting shell item for a value no item has (a command that no longer exists);
// -1 when neither is there.
int SelectDropChoice(const std::vector<int32_t>& itemCommands, int32_t stored);
