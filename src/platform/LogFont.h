// A font description field for field as the system keeps it (LOGFONTW), the face name in UTF-16 units.
#pragma once

#include <cstdint>

struct LogFont {
    int32_t lfHeight = 0;
    int32_t lfWidth = 0;
    int32_t lfEscapement = 0;
    int32_t lfOrientation = 0;
    int32_t lfWeight = 0;
    uint8_t lfItalic = 0;
    uint8_t lfUnderline = 0;
    uint8_t lfStrikeOut = 0;
    uint8_t lfCharSet = 0;
    uint8_t lfOutPrecision = 0;
    uint8_t lfClipPrecision = 0;
    uint8_t lfQuality = 0;
    uint8_t lfPitchAndFamily = 0;
    wchar_t lfFaceName[32] = {};
};
