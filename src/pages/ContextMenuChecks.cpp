#include "pages/ContextMenuChecks.h"

namespace {

// The four checks of a place, in order.
constexpr int kExtraItems = 0;
constexpr int kShellItems = 1;
constexpr int kExtendedItems = 2;
constexpr int kShellOnTop = 3;

}  // namespace

ContextMenuChecks ChecksOfContextMenu(int32_t contextMenu) {
    ContextMenuChecks checks{};
    for (size_t i = 0; i < checks.size(); ++i) checks[i] = (static_cast<uint32_t>(contextMenu) >> i) & 1u;
    return checks;
}

int32_t ContextMenuWithChecks(int32_t contextMenu, const ContextMenuChecks& checks) {
    auto value = static_cast<uint32_t>(contextMenu);
    for (size_t i = 0; i < checks.size(); ++i) {
        const uint32_t bit = 1u << i;
        value = checks[i] ? value | bit : value & ~bit;
    }
    return static_cast<int32_t>(value);
}

ContextMenuChecks EnabledContextMenuChecks(const ContextMenuChecks& ticked) {
    ContextMenuChecks enabled{};
    enabled.fill(true);
    for (int place = 0; place < kContextMenuPlaces; ++place) {
        const int first = place * kContextMenuChecksPerPlace;
        const bool extra = ticked[first + kExtraItems], shell = ticked[first + kShellItems];
        enabled[first + kShellOnTop] = extra && shell;
        enabled[first + kExtendedItems] = shell;
    }
    return enabled;
}
