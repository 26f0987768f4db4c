// The Load and Save groups of every settings section. A page loads its groups when first shown and
// saves them at Apply. Load selects each section itself and reads every value over its default; Save
// writes every value of the group that this program owns, changed or not. Values the host owns are
// read and never written. The tables are in ApplicationGroups.cpp, ListGroups.cpp and BarGroups.cpp.
#pragma once

#include <cstdint>
#include <span>

#include "settings/SettingsStore.h"

enum class SettingsGroup {
    // Application-wide sections "AppInfo", "Settings", "Mouse", "Event" and "Sound".
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
    ContextMenu,  // "Mouse": ContextMenu, whose low twelve bits are the page's checks
    Gesture,      // "Mouse": gesture trigger, trail colour, sensitivity, time-out
    Event,        // command lines run on events
    Sound,        // sound files played on events
    // The file list and its look.
    ListInitial,  // "ListInit" initial state, with the inside tree of "TreeInfo"
    ListWidths,   // "ListInit" column and tile widths
    ListStyle,    // "ListDraw" base group
    ListIcon,     // "ListDraw" icon retrieval
    ListDrawing,  // "ListDraw" drawing of the list
    ListStatus,   // "ListDraw" status area
    AddressBar,   // "ListDraw" address bar
    CustomSort,   // "ListDraw" custom sort bits
    ListAction,   // "ListAction" behaviour
    AutoUpdate,   // "ListAction" automatic update, and the list of "ListNoUpdate"
    FilterBar,    // "ListAction" filter and search bar
    SplitView,    // "ListAction" two lists side by side
    ListClicks,   // "ListMouse" click actions; also reads the wheel values, which it does not write
    BlankArea,    // "ListMouse" scripts of the blank area
    Colors,       // "Color"
    ViewFont,     // "ViewFont", and the two fonts built from it
    Thumb,        // "Thumb"
    // The bars around the list.
    Tree,          // "TreeInfo" and its roots
    TabBar,        // "TabStyle" tab bar
    TabCommon,     // "TabStyle" common values and click commands
    UserBar,       // "UBar" and the nine bars of "Bar"
    PreView,       // "PreView"
    Recent,        // "Recent"
    FolderInfo,    // "FolderInfo": one value per folder; Save deletes the key and writes it anew
    FolderInfoEx,  // "FolderInfoEx": wild-card and regular expression lists
    Skin,          // skin and background image in "Settings"
    StatusAnime,   // status animation in "Settings"
};

// Every group, in the order above.
constexpr int kSettingsGroups = static_cast<int>(SettingsGroup::StatusAnime) + 1;

void LoadGroup(SettingsStore& store, SettingsGroup group);
void SaveGroup(SettingsStore& store, SettingsGroup group);

// The wheel page's Apply: AltWheel, then UseWheelCmd, into whatever section is selected at that moment.
// The host reads them from "ListMouse"; after another page's Save they land in that page's section.
void SaveWheelValues(SettingsStore& store);

// The details view of section "Detail", read and never written: for each column the desktop folder
// offers (its width in characters), Col%02d (1 for the first four), Width%02d (six times the
// character width) and Index%02d (the column number).
void LoadDetailColumns(SettingsStore& store, std::span<const int32_t> columnCharWidths);

// The range a page accepts for the member; low > high when any value goes.
struct SettingRange {
    int32_t low = 1;
    int32_t high = 0;
};
SettingRange RangeOf(int32_t SettingsStore::*member);

// Save writes ContextMenu as these upper bits and the twelve checks below them, whatever was stored.
constexpr int32_t kContextMenuBase = 0x33333000;
constexpr int kContextMenuChecks = 12;
