#pragma once

#include <cstdint>

// The bit of a numbered flag in a 32-bit set: 1 shifted left by the number modulo 32
// (a negative number counts by its low five bits, as the processor's shift does).
constexpr uint32_t BitMask(int32_t number) {
    return 1u << (static_cast<uint32_t>(number) % 32);
}
