// The readme of a skin folder. Skin authors write it in whatever their editor saves, so its bytes are
// read as they stand, the encoding is guessed from them, and the text converted unless it already is
// UTF-16.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace platform {
class CodePages;
}

constexpr uint32_t kCodePageUtf16 = 1200;
constexpr uint32_t kCodePageUtf16BigEndian = 1201;
constexpr uint32_t kCodePageUtf32 = 12000;
constexpr uint32_t kCodePageUtf32BigEndian = 12001;
constexpr uint32_t kCodePageUtf8 = 65001;
constexpr uint32_t kCodePageShiftJis = 932;
constexpr uint32_t kCodePageEucJp = 51932;
constexpr uint32_t kCodePageIso2022Jp = 50220;
// Neither the byte order mark nor the scores tell: the system has to guess.
constexpr uint32_t kCodePageUndecided = 0;

// The code page the bytes show by their byte order mark, their escape sequences or the Japanese
// encoding whose byte pairs they fit best; kCodePageUndecided when none stands out.
uint32_t DetectCodePage(std::span<const uint8_t> bytes);

// A file's bytes as a wide-character line reader in binary mode gives them: two bytes a unit, an odd
// last byte lost, and each line (up to and including its U+000A unit) cut at its first zero unit.
std::wstring RawUnits(std::span<const uint8_t> fileBytes);

// The text of the raw units: UTF-16 as it stands, anything else converted from the code page detected
// over their bytes (or guessed by the system); raw when no code page is found or the conversion fails.
std::wstring DecodeReadme(const std::wstring& raw, platform::CodePages& codePages);

// The readme of the folder (with its trailing backslash); empty when there is none.
std::wstring ReadSkinReadme(const std::wstring& folder);
