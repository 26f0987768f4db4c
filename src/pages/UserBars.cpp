#include "pages/UserBars.h"

#include <utility>

#include "platform/FileSystem.h"
#include "services/CRuntime.h"
#include "services/MessageIds.h"

namespace {

using UB = UBarValues;

// The low two bits both set turn the list on; bit 2 turns multiple selection off.
constexpr int32_t kListBits = 3;
constexpr int32_t kSingleSelectBit = 4;
constexpr int32_t kNoList = 4;
constexpr int32_t kListMultiSelect = 3;
constexpr int32_t kListSingleSelect = 7;

// Enter, left click and middle click among the button names.
constexpr size_t kEnterPart = 0;
constexpr size_t kLeftClickPart = 2;
constexpr size_t kMiddleClickPart = 4;

}  // namespace

BarStyle DecodeBarStyle(int32_t style) {
    BarStyle checks;
    checks.list = (style & kListBits) == kListBits ? 1 : 0;
    if (style & kSingleSelectBit) checks.multiSelect = 0;
    return checks;
}

int32_t EncodeBarStyle(const BarStyle& style) {
    if (!style.list) return kNoList;
    return style.multiSelect ? kListMultiSelect : kListSingleSelect;
}

SlotCells SlotCellsOf(size_t slot, const UserBar& bar) {
    const bool shown = !bar.Name.empty() && !bar.Dir.empty() && bar.Width;
    return {std::to_wstring(slot + 1), bar.Name, bar.Dir, shown ? std::to_wstring(*bar.Width) : std::wstring()};
}

UserBar BarOfCells(const std::wstring& name, const std::wstring& dir, const std::wstring& width) {
    UserBar bar{name, dir, std::nullopt};
    if (!width.empty()) bar.Width = crt::Wtoi(width);
    return bar;
}

std::wstring BarFolder(const std::wstring& userDirectory, const std::wstring& dir) {
    return userDirectory + L"Bar\\" + dir;
}

uint16_t SlotRefusal(platform::FileSystem& files, const std::wstring& userDirectory, const std::wstring& name,
                     const std::wstring& dir) {
    if (name.empty() || dir.empty()) return kMsgNameOrFolderEmpty;
    if (files.GetAttributes(BarFolder(userDirectory, dir)) == platform::kInvalidAttributes) return kMsgFolderMissing;
    return 0;
}

void CopyBarIcons(platform::FileSystem& files, const std::wstring& programDirectory, const std::wstring& userDirectory,
                  std::span<const UserBar> bars) {
    const std::wstring icon = programDirectory + L"..\\..\\InitTemp\\Bar\\Default.ico";
    for (const UserBar& bar : bars)
        if (!bar.Dir.empty()) files.CopyWithoutReplacing(icon, BarFolder(userDirectory, bar.Dir) + L".ico");
}

std::vector<ClickGroup> UserBarClickGroups(const std::vector<std::wstring>& buttonNames) {
    auto name = [&](size_t part) { return part < buttonNames.size() ? buttonNames[part] : std::wstring(); };
    return {
        {name(kEnterPart), {&UB::En, &UB::EnC, &UB::EnS, &UB::EnCS}},
        {name(kLeftClickPart), {&UB::L, &UB::LC, &UB::LS, &UB::LCS}},
        {name(kMiddleClickPart), {&UB::M, &UB::MC, &UB::MS, &UB::MCS}},
    };
}

ClickTable MakeUserBarClickTable(const std::vector<std::wstring>& buttonNames,
                                 const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> actions) {
    return ClickTable(ClickRowsOf(UserBarClickGroups(buttonNames), modifierNames), std::move(actions));
}
