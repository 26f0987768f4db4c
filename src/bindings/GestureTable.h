// Mouse gestures: trails of directions drawn with a button held, each bound to a command. The user
// sees arrows; the host's registry key holds one value per trail, named with letters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class SettingsStore;

constexpr wchar_t kArrowUp = L'\u2191';
constexpr wchar_t kArrowDown = L'\u2193';
constexpr wchar_t kArrowRight = L'\u2192';
constexpr wchar_t kArrowLeft = L'\u2190';

// The most direction changes a trail holds.
constexpr size_t kMaxTrailDirections = 12;
// The table takes no row once it holds more than this many.
constexpr int kMaxGestureRows = 100;

// A direction is added unless the trail is full or already ends with it. True when it was added.
bool AppendDirection(std::wstring& trail, wchar_t arrow);
// Takes the last direction away; an empty trail stays empty.
void RemoveLastDirection(std::wstring& trail);

// U, D, R and L become arrows; every other character stays as it stands.
std::wstring TrailOfRegistryName(const std::wstring& name);
// Arrows become U, D, R and L; every other character stays as it stands.
std::wstring RegistryNameOfTrail(const std::wstring& trail);

struct GestureBinding {
    std::wstring trail;  // arrows
    uint32_t command = 0;
    bool operator==(const GestureBinding&) const = default;
};

// The bindings under the host's key, in the registry's order; none when the key cannot be opened.
std::vector<GestureBinding> ReadGestureTable();
// Deletes the key and writes it anew from the bindings: an empty table leaves an empty key. When
// the key cannot be deleted the bindings are added to what it holds.
void WriteGestureTable(SettingsStore& store, const std::vector<GestureBinding>& bindings);

// The table the button for the standard gestures puts in place, in the order of insertion.
const std::vector<GestureBinding>& DefaultGestureTable();
