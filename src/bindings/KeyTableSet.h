// Key modes: for each, one command identifier per key under four modifier states.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "bindings/KeyNameTable.h"

// Block order inside a table.
enum KeyModifier : int { kModifierNone, kModifierShift, kModifierCtrl, kModifierCtrlShift };
inline constexpr int kModifierCount = 4;
inline constexpr int kKeyModeCount = 9;

// One key mode: four blocks of 76 words, 0 for a key without a command. A key file holds exactly this.
using KeyMapTable = std::array<uint16_t, kModifierCount * kKeyCount>;
inline constexpr size_t kKeyMapTableBytes = sizeof(uint16_t) * kModifierCount * kKeyCount;

// The nine key modes in mode order.
struct KeyTableSet {
    std::array<KeyMapTable, kKeyModeCount> modes{};

    constexpr uint16_t& Word(int mode, int modifier, int key) { return modes[mode][modifier * kKeyCount + key]; }
    constexpr uint16_t Word(int mode, int modifier, int key) const { return modes[mode][modifier * kKeyCount + key]; }
    std::span<const uint16_t, kKeyCount> Block(int mode, int modifier) const {
        return std::span<const uint16_t, kKeyCount>(modes[mode].data() + modifier * kKeyCount, kKeyCount);
    }
    bool operator==(const KeyTableSet&) const = default;
};
