// The status area of the file list: which of its parts the host shows, and the three templates of its
// text with the presets a user may start from. The host expands the macros; this program stores them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

struct StatusTemplates {
    std::wstring diskInfo;     // what %DiskInfo% stands for
    std::wstring selected;     // with items selected
    std::wstring noSelection;  // with none
    bool operator==(const StatusTemplates&) const = default;
};

enum class StatusPreset { Japanese, English, Sample };

StatusTemplates PresetTemplates(StatusPreset preset);

// The parts of the status area a user may hide, one bit each of ListCtrls from bit 0.
constexpr int kStatusParts = 3;
using StatusParts = std::array<bool, kStatusParts>;

StatusParts PartsOfListCtrls(int32_t listCtrls);
// The value formed anew from the parts: the bits above them are not kept.
int32_t ListCtrlsOfParts(const StatusParts& parts);
