// The Load and Save groups of the application-wide sections "AppInfo", "Settings", "Mouse", "Event" and
// "Sound". A page loads its groups when first shown and saves them at Apply. Load selects each section
// itself and reads every value over its default; Save writes every value of the group that this program
// owns, changed or not. Values the host owns are read and never written.
#pragma once

#include <cstdint>

#include "settings/SettingsStore.h"

enum class AppGroup {
    General,            // "AppInfo" general behaviour, then IME from "Settings"
    StartUp,            // Alfa and DoubleBuffer, read at start; Save writes nothing
    Message,            // the confirmation bits
    CommonOperation,    // renaming in place, drag and drop, pasting
    IncrementalSearch,  // search time and C/Migemo
    StandardCommands,   // style and targets of the standard command dialogs
    Network,
    VersionCheck,
    TitleBar,
    Other,        // "Settings": user directory, multiple start, tray, scripts
    KeyPage,      // "Settings" values read and written with the key page
    ContextMenu,  // "Mouse": ContextMenu as twelve checks
    Gesture,      // "Mouse": gesture trigger, trail colour, sensitivity, time-out
    Event,        // command lines run on events
    Sound,        // sound files played on events
};

void LoadGroup(SettingsStore& store, AppGroup group);
void SaveGroup(SettingsStore& store, AppGroup group);

// Save rebuilds ContextMenu from this and the twelve checks: the upper twenty bits are always written
// as the default has them, whatever was stored.
constexpr int32_t kContextMenuBase = 0x33333000;
