// The host's settings in the registry: one cached open section with typed reads and writes, and every
// loaded setting as a plain member. The Load and Save groups of the pages are built on these calls.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "platform/LogFont.h"
#include "settings/ApplicationValues.h"
#include "settings/BarValues.h"
#include "settings/ListValues.h"

// The settings members come from one struct per section, so that pages name them as store().UsePing
// (or store().TreeInfoValues::Caption where sections share a name).
class SettingsStore : public AppInfoValues,
                      public SettingsSectionValues,
                      public MouseValues,
                      public EventValues,
                      public SoundValues,
                      public ListInitValues,
                      public ListDrawValues,
                      public ListActionValues,
                      public ListMouseValues,
                      public ColorValues,
                      public ThumbValues,
                      public DetailValues,
                      public TreeInfoValues,
                      public TabStyleValues,
                      public UBarValues,
                      public BarValues,
                      public PreViewValues,
                      public RecentValues,
                      public FolderInfoValues,
                      public SkinValues {
public:
    // Where the sections live beneath HKEY_CURRENT_USER.
    static constexpr const wchar_t* kSectionRoot = L"Software\\Tarnwick\\QOR\\Main001\\";

    // The screen's vertical resolution gives the display factor; everything else starts at zero.
    explicit SettingsStore(int screenLogPixelsY = 96);
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    // Selecting the section already selected (same letter case) keeps the open key.
    void SelectSection(const std::wstring& section);
    // Opens (creating it if need be) the selected section's key; true when it is available.
    bool OpenKey();
    // The value's text, or the default when it is absent or over 32,768 bytes. The type is not looked at.
    std::wstring ReadString(const std::wstring& name, const std::wstring& defaultText);
    // The value's first four bytes over the default, or the default when it is absent or larger.
    int32_t ReadInt(const std::wstring& name, int32_t defaultValue);
    // Stores the text without its terminator, as the host's own writer does.
    bool WriteString(const std::wstring& name, const std::wstring& text);
    bool WriteInt(const std::wstring& name, int32_t value);
    // The twelve font values of the selected section over the system's icon title font; underline and
    // strike-out are never stored and come back as 0.
    void ReadFont(LogFont& font);
    bool WriteFont(const LogFont& font);
    // Every value of the selected section as its name and text, in the registry's order; names of up
    // to 1,023 characters and texts of up to 1,024 bytes (a longer one still makes an entry).
    PathStateList ReadAllStrings();
    // Deletes the selected section's key (it must have no subkeys); the next access creates it again.
    bool DeleteSection();

    const std::wstring& current_path() const { return currentPath_; }

    double DisplayFactor = 1.0;

private:
    std::wstring currentPath_;
    std::unique_ptr<platform::RegistryKey> key_;
    std::vector<uint8_t> readBuffer_;
};

// Values outside the selected section, each access on its own key opened and closed at once.
std::wstring DirectReadString(const std::wstring& path, const std::wstring& name, const std::wstring& defaultText);
int32_t DirectReadInt(const std::wstring& path, const std::wstring& name, int32_t defaultValue);
bool DirectWriteString(const std::wstring& path, const std::wstring& name, const std::wstring& text);
bool DirectWriteInt(const std::wstring& path, const std::wstring& name, int32_t value);

// The key of NLS, UserDir, UserDirMode and LangOut, spelt as the host spells it there.
constexpr const wchar_t* kDirectSettingsPath = L"Software\\Tarnwick\\Qor\\Main001\\Settings";
