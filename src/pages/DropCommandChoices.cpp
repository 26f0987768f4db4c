#include "pages/DropCommandChoices.h"

#include "definitions/CommandCatalog.h"

namespace {

// The commands a drop may run: the last group of external commands.
constexpr uint16_t kFirstDropCommand = 42001;
constexpr uint16_t kLastDropCommand = 43000;

}  // namespace

DropChoices MakeDropChoices(DropKind kind, const CommandCatalog& commands, int32_t stored) {
    DropChoices choices;
    if (kind == DropKind::Copy) {
        choices.items = {{L"内部コマンド:シェルのファイルコピー(バックグラウンド)", 0},
                         {L"内部コマンド:シェルのファイルコピー(同期モード)", 1}};
    } else {
        choices.items = {{L"内部コマンド:シェルのファイル移動(バックグラウンド)", 0},
                         {L"内部コマンド:シェルのファイル移動(同期モード)", 1}};
    }
    choices.selected = stored == 0 ? 0 : 1;
    for (auto& [id, name] : commands.ListedCommands(kFirstDropCommand, kLastDropCommand)) {
        if (name.empty()) continue;
        if (stored == id) choices.selected = static_cast<int>(choices.items.size());
        choices.items.push_back({name, id});
    }
    return choices;
}
