// The switch string the host leaves in QOR_ExCommand: ten colon-separated fields.
#pragma once

#include <cstdint>
#include <string>

struct HostSwitches {
    bool valid = false;      // exactly ten fields
    int32_t windowMode = 0;  // field 0: how dialogs place themselves against the host
    int32_t reactivate = 0;  // field 1: exactly 1 brings the host forward at the end
    bool share = false;      // field 8 is "Share" (compared with case): a shared block is named
    int32_t blockFirst = 0;  // fields 2 and 3 name the block
    int32_t blockSecond = 0;
    int32_t blockSize = 0;  // field 4, in bytes
};

// Anything but exactly ten fields leaves everything at zero; an empty text likewise.
HostSwitches ParseHostSwitches(const std::wstring& text);
