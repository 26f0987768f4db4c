#include "pages/DropCommandChoices.h"

#include <algorithm>

#include "definitions/CommandCatalog.h"

namespace {

constexpr uint16_t kFirstDropCommand = 42001;
constexpr uint16_t kLastDropCommand = 43000;
constexpr int32_t kShellWaiting = 1;

int IndexOf(const std::vector<int32_t>& itemCommands, int32_t command) {
    auto found = std::find(itemCommands.begin(), itemCommands.end(), command);
    return found == itemCommands.end() ? -1 : static_cast<int>(found - itemCommands.begin());
}

}  // namespace

int32_t ShellDropCommand(int index) {
    return index == 0 ? 0 : kShellWaiting;
}

std::vector<DropChoice> DropCommands(const CommandCatalog& commands) {
    std::vector<DropChoice> choices;
    for (auto& [id, name] : commands.ListedCommands(kFirstDropCommand, kLastDropCommand)) {
        if (!name.empty()) choices.push_back({name, id});
    }
    return choices;
}

int SelectDropChoice(const std::vector<int32_t>& itemCommands, int32_t stored) {
    const int index = IndexOf(itemCommands, stored);
    return index >= 0 ? index : IndexOf(itemCommands, kShellWaiting);
}
