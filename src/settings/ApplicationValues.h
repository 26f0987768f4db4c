// The members of the application-wide sections "AppInfo", "Settings", "Mouse", "Event" and "Sound",
// each named exactly as its registry value (misspellings included). SettingsStore holds them all; the
// groups in ApplicationGroups.cpp give their defaults and say which ones are written.
// Before a group loads, every member is zero or empty.
#pragma once

#include <cstdint>
#include <string>

struct AppInfoValues {
    // General behaviour.
    int32_t DisableAnimation = 0;
    int32_t UseCompFolder = 0;
    int32_t CasheExCmd = 0;
    int32_t DragHelper = 0;
    int32_t ChgSortAlg = 0;
    int32_t ListReserveVal = 0;  // the host's; read and never written
    // Read at start, never written.
    int32_t Alfa = 0;
    int32_t DoubleBuffer = 0;
    // Confirmation bits: bit n on shows confirmation n.
    int32_t Message = 0;
    // Common operation.
    int32_t InplaceRename = 0;
    int32_t DropFolder = 0;
    int32_t CanDrag = 0;
    int32_t DropExCommand0 = 0;
    int32_t DropExCommand1 = 0;
    int32_t SmartPaste = 0;
    // Incremental search.
    int32_t IncliMentTime = 0;
    int32_t UseMigemo = 0;
    std::wstring MigemoDll;
    std::wstring MigemoDic;
    int32_t MigemoMax = 0;
    // Standard commands.
    int32_t StyleMode = 0;
    int32_t ExitAction = 0;
    int32_t DivTarget = 0;
    int32_t AllPaneTarget = 0;
    // Network.
    int32_t UsePing = 0;
    int32_t NetworkTimeout = 0;
    int32_t NetworkRetry = 0;
    int32_t NoNetwork = 0;  // the host's; read and never written
    // Version check; the time is an OLE date as decimal text.
    int32_t VersionCheckDay = 0;
    int32_t VersionCheckBeta = 0;
    std::wstring VersionCheckTime;
    // Title bar.
    int32_t TitleBarType = 0;
};

struct SettingsSectionValues {
    // Directories and start-up.
    std::wstring UserDir;
    int32_t UserDirMode = 0;
    int32_t DupMutex = 0;
    int32_t Resident = 0;
    std::wstring NLS;  // language tag; read and never written here
    int32_t MaxScript = 0;
    int32_t EveryFront = 0;  // no control, written back as read
    // General behaviour page, kept in this section.
    int32_t IME = 0;
    // Key page; the first four are the host's and never written.
    int32_t CheckMode = 0;
    int32_t KeyLayout = 0;
    int32_t BarLock = 0;
    int32_t DefaultDrop = 0;
    int32_t AutoSwitchAllocKeyTime = 0;
    int32_t AutoSwitchAllocKey = 0;
};

struct MouseValues {
    int32_t ContextMenu = 0;  // bit n is the page's check n
    // Gestures.
    int32_t Gesture = 0;
    int32_t GestureCol = 0;
    int32_t GestureSensitivity = 0;
    int32_t TimeOut = 0;
};

// Command lines run on the events their names tell.
struct EventValues {
    std::wstring CmdInitInstance;
    std::wstring CmdExitInstance;
    std::wstring CmdDiskDel;
    std::wstring CmdDiskAdd;
    std::wstring Cmd1Minute;
    std::wstring Cmd10Minute;
    std::wstring Cmd1Hour;
    std::wstring CmdDelete;
    std::wstring CmdPaste;
    std::wstring CmdDustBox;
    std::wstring CmdRecent;
    std::wstring CmdComplete;
    std::wstring CmdListSelChange;
};

// Sound files played on the events their names tell.
struct SoundValues {
    std::wstring SoundBooting;
    std::wstring SoundExit;
    std::wstring SoundShellExec;
    std::wstring SoundGuestureCursor;
    std::wstring SoundGuestureGo;
    std::wstring SoundGuestureCancel;
    std::wstring SoundScript;
    std::wstring SoundCommand;
    std::wstring SoundSelect;
    std::wstring SoundBarView;
    std::wstring SoundBarCmd;
    std::wstring SoundComplete;
    std::wstring SoundDelete;
    std::wstring SoundPaste;
    std::wstring SoundDustBox;
    std::wstring SoundRecent;
};
