// Names of command identifiers: the user's command lists for the extensible ranges, the language
// library for everything else, and a numbered generic text where neither has one.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/ResourceLibrary.h"

// 0 is no command; the external commands are the user-extensible range of the command lists.
inline constexpr uint16_t kNoCommand = 0;
inline constexpr uint16_t kFirstExternalCommand = 40001;
inline constexpr uint16_t kLastExternalCommand = 43000;

// A range whose unnamed identifiers are shown through a language string with one "%d".
struct NumberedRange {
    uint16_t first;
    uint16_t last;
    uint16_t format;    // the language string
    int32_t shownBase;  // the integer shown is the identifier minus this
};

// In the order they are tested: six groups of external commands, nine user bars of ten operations.
inline constexpr NumberedRange kNumberedRanges[] = {
    {40001, 40500, 50551, 0},     {40501, 41000, 50552, 0},     {41001, 41500, 50553, 0},
    {41501, 42000, 50554, 0},     {42001, 42500, 50555, 0},     {42501, 43000, 50556, 0},
    {33000, 33009, 50560, 32999}, {33010, 33019, 50561, 33009}, {33020, 33029, 50562, 33019},
    {33030, 33039, 50563, 33029}, {33040, 33049, 50564, 33039}, {33050, 33059, 50571, 33049},
    {33060, 33069, 50572, 33059}, {33070, 33079, 50573, 33069}, {33080, 33089, 50574, 33079},
};

class CommandCatalog {
public:
    static constexpr const wchar_t* kUnknownText = L"Cannot get command string.";
    static constexpr const wchar_t* kNoCommandText = L"---";

    CommandCatalog() = default;
    CommandCatalog(const CommandCatalog&) = delete;
    CommandCatalog& operator=(const CommandCatalog&) = delete;

    // Reads the six lists of the user directory (with its trailing backslash) in their order; a list
    // that cannot be opened is told to the user and the others are still read. Returns the number of
    // entries stored, replacements counted.
    int LoadCommandLists(const std::wstring& userDirectory);
    // The listed name of an identifier; empty when no list names it.
    std::wstring LookupListedCommand(uint16_t id) const;
    // The text to show for any identifier. library may be null.
    std::wstring GetCommandString(uint16_t id, const platform::ResourceLibrary* library) const;
    // The listed commands from first to last inclusive, by identifier: what a combo of external
    // commands offers.
    std::vector<std::pair<uint16_t, std::wstring>> ListedCommands(uint16_t first, uint16_t last) const;
    // Forgets every entry; at program end.
    void Clear() { entries_.clear(); }
    size_t size() const { return entries_.size(); }

private:
    std::map<uint16_t, std::wstring> entries_;
};
