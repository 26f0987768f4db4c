#include "settings/SettingsGroups.h"

#include <algorithm>
#include <iterator>

#include "settings/SettingRows.h"

namespace {

using S = SettingsStore;

// Section "AppInfo".

const SettingRow kGeneralRows[] = {
    IntRow(L"DisableAnimation", &S::DisableAnimation, 0),
    IntRow(L"UseCompFolder", &S::UseCompFolder, 1),
    IntRow(L"CasheExCmd", &S::CasheExCmd, 0),
    IntRow(L"DragHelper", &S::DragHelper, 1),
    IntRow(L"ChgSortAlg", &S::ChgSortAlg, 10).Range(0, 10000),
    IntRow(L"ListReserveVal", &S::ListReserveVal, 100000, Saved::No),
};

const SettingRow kStartUpRows[] = {
    IntRow(L"Alfa", &S::Alfa, 0, Saved::No),
    IntRow(L"DoubleBuffer", &S::DoubleBuffer, 0, Saved::No),
};

const SettingRow kMessageRows[] = {
    IntRow(L"Message", &S::Message, -1),
};

const SettingRow kCommonOperationRows[] = {
    IntRow(L"InplaceRename", &S::InplaceRename, 1),
    IntRow(L"DropFolder", &S::DropFolder, 1),
    IntRow(L"CanDrag", &S::CanDrag, 1),
    IntRow(L"DropExCommand0", &S::DropExCommand0, 0),
    IntRow(L"DropExCommand1", &S::DropExCommand1, 0),
    IntRow(L"SmartPaste", &S::SmartPaste, 1),
};

const SettingRow kIncrementalSearchRows[] = {
    IntRow(L"IncliMentTime", &S::IncliMentTime, 1000).Range(100, 10000),
    IntRow(L"UseMigemo", &S::UseMigemo, 0),
    TextRow(L"MigemoDll", &S::MigemoDll, L""),
    TextRow(L"MigemoDic", &S::MigemoDic, L""),
    IntRow(L"MigemoMax", &S::MigemoMax, 2000).Range(0, 10000),
};

const SettingRow kStandardCommandsRows[] = {
    IntRow(L"StyleMode", &S::StyleMode, 0),
    IntRow(L"ExitAction", &S::ExitAction, 0),
    IntRow(L"DivTarget", &S::DivTarget, 1),
    IntRow(L"AllPaneTarget", &S::AllPaneTarget, 0),
};

const SettingRow kNetworkRows[] = {
    IntRow(L"UsePing", &S::UsePing, 0),
    IntRow(L"NetworkTimeout", &S::NetworkTimeout, 500).Range(10, 5000000),
    IntRow(L"NetworkRetry", &S::NetworkRetry, 3).Range(1, 100),
    IntRow(L"NoNetwork", &S::NoNetwork, 0, Saved::No),
};

const SettingRow kVersionCheckRows[] = {
    IntRow(L"VersionCheckDay", &S::VersionCheckDay, 7),
    IntRow(L"VersionCheckBeta", &S::VersionCheckBeta, 0),
    // The page's reset writes it at once; Apply leaves it to the host, which stamps each check.
    TextRow(L"VersionCheckTime", &S::VersionCheckTime, L"", Saved::No),
};

const SettingRow kTitleBarRows[] = {
    IntRow(L"TitleBarType", &S::TitleBarType, 0),
};

// Section "Settings".

const SettingRow kOtherRows[] = {
    TextRow(L"UserDir", &S::UserDir, L""),          IntRow(L"UserDirMode", &S::UserDirMode, 0),
    IntRow(L"DupMutex", &S::DupMutex, 0),           IntRow(L"Resident", &S::Resident, 0),
    TextRow(L"NLS", &S::NLS, L".ja-JP", Saved::No), IntRow(L"MaxScript", &S::MaxScript, 5).Range(1, 50),
    IntRow(L"EveryFront", &S::EveryFront, 0),
};

const SettingRow kImeRows[] = {
    IntRow(L"IME", &S::IME, 1),
};

const SettingRow kKeyPageRows[] = {
    IntRow(L"CheckMode", &S::CheckMode, 2, Saved::No),
    IntRow(L"KeyLayout", &S::KeyLayout, 0, Saved::No),
    IntRow(L"BarLock", &S::BarLock, 0, Saved::No),
    IntRow(L"DefaultDrop", &S::DefaultDrop, 0, Saved::No),
    IntRow(L"AutoSwitchAllocKeyTime", &S::AutoSwitchAllocKeyTime, 3000).Range(0, 500000),
    IntRow(L"AutoSwitchAllocKey", &S::AutoSwitchAllocKey, 0),
};

// Section "Mouse".

const SettingRow kContextMenuRows[] = {
    IntRow(L"ContextMenu", &S::ContextMenu, 0x33333333).Writes((1u << kContextMenuChecks) - 1, kContextMenuBase),
};

const SettingRow kGestureRows[] = {
    IntRow(L"Gesture", &S::Gesture, 0),
    IntRow(L"GestureCol", &S::GestureCol, 0xFF7F7F),
    IntRow(L"GestureSensitivity", &S::GestureSensitivity, 5).Range(3, 100),
    IntRow(L"TimeOut", &S::TimeOut, 0),
};

// Section "Event".

const SettingRow kEventRows[] = {
    TextRow(L"CmdInitInstance", &S::CmdInitInstance, L""),
    TextRow(L"CmdExitInstance", &S::CmdExitInstance, L""),
    TextRow(L"CmdDiskDel", &S::CmdDiskDel, L""),
    TextRow(L"CmdDiskAdd", &S::CmdDiskAdd, L""),
    TextRow(L"Cmd1Minute", &S::Cmd1Minute, L""),
    TextRow(L"Cmd10Minute", &S::Cmd10Minute, L""),
    TextRow(L"Cmd1Hour", &S::Cmd1Hour, L""),
    TextRow(L"CmdDelete", &S::CmdDelete, L""),
    TextRow(L"CmdPaste", &S::CmdPaste, L""),
    TextRow(L"CmdDustBox", &S::CmdDustBox, L""),
    TextRow(L"CmdRecent", &S::CmdRecent, L""),
    TextRow(L"CmdComplete", &S::CmdComplete, L""),
    TextRow(L"CmdListSelChange", &S::CmdListSelChange, L""),
};

// Section "Sound".

const SettingRow kSoundRows[] = {
    TextRow(L"SoundBooting", &S::SoundBooting, L""),
    TextRow(L"SoundExit", &S::SoundExit, L""),
    TextRow(L"SoundShellExec", &S::SoundShellExec, L""),
    TextRow(L"SoundGuestureCursor", &S::SoundGuestureCursor, L""),
    TextRow(L"SoundGuestureGo", &S::SoundGuestureGo, L""),
    TextRow(L"SoundGuestureCancel", &S::SoundGuestureCancel, L""),
    TextRow(L"SoundScript", &S::SoundScript, L""),
    TextRow(L"SoundCommand", &S::SoundCommand, L""),
    TextRow(L"SoundSelect", &S::SoundSelect, L""),
    TextRow(L"SoundBarView", &S::SoundBarView, L""),
    TextRow(L"SoundBarCmd", &S::SoundBarCmd, L""),
    TextRow(L"SoundComplete", &S::SoundComplete, L""),
    TextRow(L"SoundDelete", &S::SoundDelete, L""),
    TextRow(L"SoundPaste", &S::SoundPaste, L""),
    TextRow(L"SoundDustBox", &S::SoundDustBox, L""),
    TextRow(L"SoundRecent", &S::SoundRecent, L""),
};

const SectionRows kGeneralParts[] = {{L"AppInfo", kGeneralRows}, {L"Settings", kImeRows}};
const SectionRows kStartUpParts[] = {{L"AppInfo", kStartUpRows}};
const SectionRows kMessageParts[] = {{L"AppInfo", kMessageRows}};
const SectionRows kCommonOperationParts[] = {{L"AppInfo", kCommonOperationRows}};
const SectionRows kIncrementalSearchParts[] = {{L"AppInfo", kIncrementalSearchRows}};
const SectionRows kStandardCommandsParts[] = {{L"AppInfo", kStandardCommandsRows}};
const SectionRows kNetworkParts[] = {{L"AppInfo", kNetworkRows}};
const SectionRows kVersionCheckParts[] = {{L"AppInfo", kVersionCheckRows}};
const SectionRows kTitleBarParts[] = {{L"AppInfo", kTitleBarRows}};
const SectionRows kOtherParts[] = {{L"Settings", kOtherRows}};
const SectionRows kKeyPageParts[] = {{L"Settings", kKeyPageRows}};
const SectionRows kContextMenuParts[] = {{L"Mouse", kContextMenuRows}};
const SectionRows kGestureParts[] = {{L"Mouse", kGestureRows}};
const SectionRows kEventParts[] = {{L"Event", kEventRows}};
const SectionRows kSoundParts[] = {{L"Sound", kSoundRows}};

const GroupRows kGroups[] = {
    {SettingsGroup::General, kGeneralParts},
    {SettingsGroup::StartUp, kStartUpParts},
    {SettingsGroup::Message, kMessageParts},
    {SettingsGroup::CommonOperation, kCommonOperationParts},
    {SettingsGroup::IncrementalSearch, kIncrementalSearchParts},
    {SettingsGroup::StandardCommands, kStandardCommandsParts},
    {SettingsGroup::Network, kNetworkParts},
    {SettingsGroup::VersionCheck, kVersionCheckParts},
    {SettingsGroup::TitleBar, kTitleBarParts},
    {SettingsGroup::Other, kOtherParts},
    {SettingsGroup::KeyPage, kKeyPageParts},
    {SettingsGroup::ContextMenu, kContextMenuParts},
    {SettingsGroup::Gesture, kGestureParts},
    {SettingsGroup::Event, kEventParts},
    {SettingsGroup::Sound, kSoundParts},
};

}  // namespace

std::span<const GroupRows> ApplicationGroupRows() {
    return kGroups;
}
