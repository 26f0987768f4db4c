#include "pages/TabClicks.h"

#include <utility>

namespace {

using TS = TabStyleValues;

// Double click, right click and middle click among the button names.
constexpr size_t kDoubleClickPart = 1;
constexpr size_t kRightClickPart = 3;
constexpr size_t kMiddleClickPart = 4;

}  // namespace

std::vector<ClickGroup> TabClickGroups(const std::vector<std::wstring>& buttonNames) {
    auto name = [&](size_t part) { return part < buttonNames.size() ? buttonNames[part] : std::wstring(); };
    return {
        {name(kDoubleClickPart), {&TS::TabBarClkD, &TS::TabBarClkDC, &TS::TabBarClkDS, &TS::TabBarClkDSC}},
        {name(kRightClickPart), {&TS::TabBarClkR, &TS::TabBarClkRC, &TS::TabBarClkRS, &TS::TabBarClkRSC}},
        {name(kMiddleClickPart), {&TS::TabBarClkM, &TS::TabBarClkMC, &TS::TabBarClkMS, &TS::TabBarClkMSC}},
    };
}

ClickTable MakeTabClickTable(const std::vector<std::wstring>& buttonNames,
                             const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> commandLabels) {
    return ClickTable(ClickRowsOf(TabClickGroups(buttonNames), modifierNames), std::move(commandLabels),
                      std::vector<int32_t>(kTabClickCommands.begin(), kTabClickCommands.end()));
}
