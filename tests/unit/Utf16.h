// Test data as the program's files hold it: UTF-16 little-endian bytes.
#pragma once

#include <cstdint>
#include <string>
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

// The same bytes as a byte string, so that expectations read alongside ANSI ones.
inline std::string Wide(std::wstring_view text) {
    const std::vector<uint8_t> bytes = Utf16Bytes(text);
    return std::string(bytes.begin(), bytes.end());
}

// The other way: the units of a file's bytes as text, byte order mark included.
inline std::wstring Utf16Text(const std::vector<uint8_t>& bytes) {
    std::wstring text;
    for (size_t at = 0; at + 1 < bytes.size(); at += 2) text += static_cast<wchar_t>(bytes[at] | (bytes[at + 1] << 8));
    return text;
}
