// Test data as the program's files hold it: UTF-16 little-endian bytes.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

inline std::vector<uint8_t> Utf16Bytes(std::wstring_view text, bool byteOrderMark = false) {
    std::vector<uint8_t> bytes;
    if (byteOrderMark) bytes = {0xFF, 0xFE};
    for (wchar_t unit : text) {
        bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<uint8_t>((unit >> 8) & 0xFF));
    }
    return bytes;
}
