#include "app/Startup.h"

#include "app/CommandLine.h"
#include "app/SniffDefinitionFile.h"
#include "platform/Platform.h"
#include "services/MessageIds.h"
#include "services/PathHelpers.h"
#include "services/ShareBlock.h"
#include "settings/SettingsGroups.h"

namespace {

// The host leaves its switch string in this variable; a longer one than the buffer is not read.
constexpr const wchar_t* kSwitchVariable = L"QOR_ExCommand";
constexpr size_t kSwitchBufferChars = 2048;

std::wstring LanguageTag() {
    return DirectReadString(kDirectSettingsPath, L"NLS", L".ja-JP");
}

void ReadHostSwitches(AppServices& app) {
    std::wstring text;
    if (!platform::Current().environment.GetVariable(kSwitchVariable, text) || text.empty()) return;
    if (text.size() >= kSwitchBufferChars) return;
    app.host = ParseHostSwitches(text);
    // With "Share" the host has filled a shared block for us.
    if (app.host.share) app.share = ReadShareBlock(app.host.blockFirst, app.host.blockSecond, app.host.blockSize);
}

void LoadLanguageLibrary(AppServices& app) {
    std::wstring path = FullPath(app.directories.ProgramDirectory() + L"..\\..\\Lang\\Qor" + LanguageTag() + L".dll");
    app.resourceModule = platform::Current().system.LoadDataLibrary(path);
    if (!app.resourceModule) {
        platform::Current().prompts.ShowMessage(app.messages.Get(kMsgLanguageLibraryMissing), platform::kStyleOk);
    }
}

// "/A": the file's own content says which editor it needs; anything else stays "/A", which means a
// script to open for editing.
int SwitchForDefinitionFile(const std::wstring& file) {
    switch (SniffDefinitionFile(file)) {
        case 1:
            return kSwitchExRun;
        case 2:
            return kSwitchRun;
        default:
            return kSwitchAuto;
    }
}

void Dispatch(AppServices& app, StartupTargets& targets, int effective, const std::wstring& file) {
    switch (effective) {
        case kSwitchExRun:
        case kSwitchRun:
        case kSwitchCommands:
            LoadGroup(app.store, SettingsGroup::Message);
            targets.OpenEditor(effective, file);
            break;
        case kSwitchMenu:
            targets.OpenEditor(effective, file);
            break;
        case kSwitchTerminate:
            break;
        case kSwitchKeyList:
            targets.WriteKeyLists();
            break;
        default:
            targets.OpenOptionDialog();
            break;
    }
}

void BringHostForward(const AppServices& app) {
    if (app.host.reactivate != 1) return;
    platform::HostWindows& windows = platform::Current().windows;
    if (platform::WindowRef host = windows.FindHostWindow()) windows.SetForeground(host);
}

}  // namespace

std::wstring CommandOptionRootPath() {
    return std::wstring(L"Software\\Tarnwick\\QOR\\Command\\") + L"Option";
}

void RunStartup(AppServices& app, StartupTargets& targets, const std::vector<std::wstring>& arguments) {
    platform::Platform& os = platform::Current();
    // Marks that a copy runs; it never keeps a second copy from running.
    auto presence = os.system.CreatePresenceMutex(L"ExCommand." + FilePart(os.environment.ModuleFileName()));
    ReadHostSwitches(app);

    app.store.SelectSection(L"Settings");
    app.store.ReadInt(L"UserDirMode", 0);
    app.userDir = app.store.ReadString(L"UserDir", L"");
    app.commandOptionRoot = CommandOptionRootPath();
    app.messages.SetPath(MessageFilePath(app.directories.ProgramDirectory(), LanguageTag()));
    app.commands.LoadCommandLists(app.directories.UserDirectory());

    CommandLine line = ParseCommandLine(arguments);
    LoadGroup(app.store, SettingsGroup::StartUp);

    int effective = EffectiveSwitch(line);
    if (effective == kSwitchAuto) effective = SwitchForDefinitionFile(line.file);
    if (effective == kSwitchAuto) {
        targets.RunEditorScript(line.file);
    } else {
        LoadLanguageLibrary(app);
        Dispatch(app, targets, effective, line.file);
    }

    app.resourceModule.reset();
    app.commands.Clear();
    BringHostForward(app);
    presence.reset();
}
