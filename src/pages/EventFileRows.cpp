#include "pages/EventFileRows.h"

#include "platform/Platform.h"
#include "services/LongPath.h"
#include "services/PathHelpers.h"
#include "settings/UserDirectories.h"

namespace {

using S = SettingsStore;

// clang-format off
constexpr std::wstring S::* kSoundValues[] = {
    &S::SoundBooting, &S::SoundExit, &S::SoundShellExec, &S::SoundScript, &S::SoundCommand, &S::SoundSelect,
    &S::SoundBarView, &S::SoundBarCmd, &S::SoundGuestureCursor, &S::SoundGuestureGo, &S::SoundGuestureCancel,
    &S::SoundComplete, &S::SoundDelete, &S::SoundPaste, &S::SoundDustBox, &S::SoundRecent,
};

// The disk rows stand crossed: the removal row holds CmdDiskAdd and the insertion row CmdDiskDel, as
// the host has always read them.
constexpr std::wstring S::* kEventValues[] = {
    &S::CmdInitInstance, &S::CmdExitInstance, &S::CmdDiskAdd, &S::CmdDiskDel, &S::Cmd1Minute, &S::Cmd10Minute,
    &S::Cmd1Hour, &S::CmdDelete, &S::CmdPaste, &S::CmdDustBox, &S::CmdRecent, &S::CmdComplete,
    &S::CmdListSelChange,
};
// clang-format on

}  // namespace

const EventFileRows kSoundRows = {SettingsGroup::Sound, kSoundValues, L"*.wav", L"*.wav|*.wav||", 49015, true};
const EventFileRows kEventRows = {SettingsGroup::Event, kEventValues, L"*.*", L"*.*|*.*||", 49014, false};

std::wstring EventFileFolder(const EventFileRows& rows, UserDirectories& directories) {
    if (rows.fromInstallation) return FullPath(directories.ProgramDirectory() + L"..\\Sound\\");
    return directories.UserDirectory() + L"Script\\";
}

std::vector<std::wstring> RowFiles(const SettingsStore& store, const EventFileRows& rows) {
    std::vector<std::wstring> files;
    for (std::wstring S::*value : rows.values) files.push_back(store.*value);
    return files;
}

void SetRowFiles(SettingsStore& store, const EventFileRows& rows, const std::vector<std::wstring>& files) {
    for (size_t row = 0; row < rows.values.size() && row < files.size(); ++row) store.*(rows.values[row]) = files[row];
}

std::optional<std::wstring> AcceptedRowFile(const std::wstring& folder, const std::wstring& chosen) {
    const std::wstring name = FilePart(chosen);
    if (name.empty()) return std::nullopt;
    // Only the name counts: a file of the same name picked elsewhere is as good.
    if (platform::Current().files.GetAttributes(ToLongPathForm(folder + name)) == platform::kInvalidAttributes) {
        return std::nullopt;
    }
    return name;
}
