#include "settings/UserDirectories.h"

#include "platform/Platform.h"
#include "services/PathHelpers.h"
#include "settings/SettingsStore.h"

const std::wstring& UserDirectories::ProgramDirectory() {
    if (!programDirectory_) programDirectory_ = DirectoryPart(platform::Current().environment.ModuleFileName());
    return *programDirectory_;
}

std::wstring UserDirectories::ApplicationRoot() { return FullPath(ProgramDirectory() + L"..\\..\\"); }

const std::wstring& UserDirectories::UserDirectory() {
    if (!userDirectory_) userDirectory_ = ComputeUserDirectory();
    return *userDirectory_;
}

std::wstring UserDirectories::ComputeUserDirectory() {
    platform::Environment& environment = platform::Current().environment;
    int32_t mode = DirectReadInt(kDirectSettingsPath, L"UserDirMode", 0);
    if (mode == 0) {
        std::wstring appData;
        if (!environment.LocalAppDataFolder(appData)) return ApplicationRoot();
        std::wstring directory = appData + L"\\Qor";
        MakeDirectory(directory);
        return directory + L"\\";
    }
    if (mode == 2) return StripSeparator(DirectReadString(kDirectSettingsPath, L"UserDir", L"")) + L"\\";
    // Mode 1, and any value the program does not know, keep the files beside the program, per user.
    std::wstring user;
    if (!environment.UserName(user)) return ApplicationRoot() + L"Ubar\\";
    std::wstring directory = ApplicationRoot() + L"Ubar\\" + user + L"\\";
    MakeDirectory(directory);
    return directory;
}
