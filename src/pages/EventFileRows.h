// The rows of the sound and event pages: one fixed row per event, each bound by its position to a
// value of the page's section that holds the bare name of a file from one folder.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "settings/SettingsGroups.h"
#include "settings/SettingsStore.h"

class UserDirectories;

struct EventFileRows {
    SettingsGroup group;
    // The value of each row, in row order.
    std::span<std::wstring SettingsStore::*const> values;
    // The file box's start name for an empty row, and its filter.
    const wchar_t* pattern;
    const wchar_t* filter;
    uint16_t changeCode;
    // Sounds come from the installation, scripts from the user's own files.
    bool fromInstallation;
};

extern const EventFileRows kSoundRows;
extern const EventFileRows kEventRows;

// The one folder the rows' files come from, with its trailing backslash.
std::wstring EventFileFolder(const EventFileRows& rows, UserDirectories& directories);
// The files of the rows, in row order.
std::vector<std::wstring> RowFiles(const SettingsStore& store, const EventFileRows& rows);
// Puts the rows' files into their values; rows beyond the list keep their values.
void SetRowFiles(SettingsStore& store, const EventFileRows& rows, const std::vector<std::wstring>& files);
// The name a file chosen anywhere gives the row, or nothing when the folder has no file of that name.
std::optional<std::wstring> AcceptedRowFile(const std::wstring& folder, const std::wstring& chosen);
