// The preview bar's plug-ins: DLLs of the plug-in folder that export the host's seven entry points.
// The list loads them to check them and to ask their default extensions, and keeps their registration
// in the registry ("Dll%d" and "Ext%d" of "PvPlugin", closed by an empty pair).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/System.h"

class SettingsStore;

// One loaded plug-in. The entry points are the library's exports; only the host calls most of them.
struct PvPlugin {
    std::unique_ptr<platform::CodeLibrary> module;
    std::wstring dllName;  // as stored, without the folder
    std::wstring extensions;
    std::vector<std::wstring> extensionList;
    uintptr_t control = 0;  // made by CreateCtrl in the host; never here
    uintptr_t CreateCtrl = 0;
    uintptr_t DestroyCtrl = 0;
    uintptr_t LoadFile = 0;
    uintptr_t SendCommand = 0;
    uintptr_t ShowCtrl = 0;
    uintptr_t ResizeWindow = 0;
    uintptr_t GetDefaultFilter = 0;

    // The plug-in's own extensions, asked with a buffer of so many characters.
    std::wstring DefaultFilter(size_t units) const;
    void SetExtensions(const std::wstring& text);
};

class CPvPluginInfo {
public:
    // What a plug-in must be given at the least to write its default extensions, and what the
    // check of a new plug-in gives it.
    static constexpr size_t kFilterUnits = 520;
    static constexpr size_t kCheckFilterUnits = 10240;

    // The folder is "..\PvPlugIn\" beside the program's directory, fixed for the object's life.
    CPvPluginInfo(platform::System& system, const std::wstring& programDirectory);
    ~CPvPluginInfo();
    CPvPluginInfo(const CPvPluginInfo&) = delete;
    CPvPluginInfo& operator=(const CPvPluginInfo&) = delete;

    const std::wstring& folder() const { return folder_; }
    bool loaded() const { return loaded_ != 0; }
    size_t size() const { return plugins_.size(); }
    PvPlugin& operator[](size_t index) { return *plugins_[index]; }

    // Every registered plug-in that still loads, with its stored extensions or else its own.
    void LoadFromRegistry(SettingsStore& store);
    // Loads the DLL of that name from the plug-in folder; its index, or -1. A DLL that does not load
    // is told with the system's words; one without the seven exports goes again in silence.
    int Add(const std::wstring& dllName);
    // Writes the list and the empty pair behind it; a plug-in without extensions is asked for its own.
    void SaveToRegistry(SettingsStore& store);
    // Lets go of every plug-in, closing a control one of them had made.
    void UnloadAll();

    // The plug-in folder joined with a name, "." and ".." taken out as the shell does.
    std::wstring PathOf(const std::wstring& name) const;

private:
    platform::System& system_;
    std::vector<std::unique_ptr<PvPlugin>> plugins_;
    int32_t loaded_ = 0;
    std::wstring folder_;
    int32_t current_ = -1;
};

// "." and ".." segments of a backslash path resolved; ".." never climbs above a drive or the start.
std::wstring CanonicalPath(const std::wstring& path);
