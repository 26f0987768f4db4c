// The skin folders the skin and animation pages list, and the rules of the background picture's
// modes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Where skins of each kind are installed, relative to the program's directory.
inline constexpr wchar_t kIconSkinFolder[] = L"..\\..\\img\\";
inline constexpr wchar_t kProgressSkinFolder[] = L"..\\..\\StatusImg\\";
inline constexpr wchar_t kAnimationSkinFolder[] = L"..\\..\\StatusAnime\\";

// The caches of icons drawn from the icon skin, in the user directory; the host makes them anew.
inline constexpr const wchar_t* kIconCaches[] = {L"imgChache.iconimg", L"imgDriveChache.iconimg"};

// The names of the folders inside root, in the order the file system gives them.
std::vector<std::wstring> ListSkinFolders(const std::wstring& root);

// How the background picture's two numbers are read in a mode.
struct BackgroundModeRule {
    bool positioned;      // the two numbers mean something in this mode
    const wchar_t* unit;  // what the labels beside them say
    uint32_t highest;     // the largest value OK takes
};
BackgroundModeRule RuleOfBackgroundMode(int32_t mode);

// OK takes these numbers in the mode.
bool BackgroundPositionFits(int32_t mode, uint32_t x, uint32_t y);
