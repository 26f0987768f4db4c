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

    // The key page's three resets from the defaults: one key of the block shown, the block shown, and
    // "all keys", which reaches the first three modes only.
    void ResetKey(const KeyTableSet& defaults, int mode, int modifier, int key) {
        Word(mode, modifier, key) = defaults.Word(mode, modifier, key);
    }
    void ResetBlock(const KeyTableSet& defaults, int mode, int modifier) {
        for (int key = 0; key < kKeyCount; ++key) ResetKey(defaults, mode, modifier, key);
    }
    void ResetAllKeys(const KeyTableSet& defaults) {
        for (int mode = 0; mode < kResetAllModes; ++mode) modes[mode] = defaults.modes[mode];
    }
    static constexpr int kResetAllModes = 3;
};
