#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "app/SniffDefinitionFile.h"
#include "app/Startup.h"
#include "definitions/CommandListFile.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;

constexpr const wchar_t* kProgram = L"C:\\Qor\\command\\Option\\Option.exe";
constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\AppData\\Local\\Qor\\";

// Records which target start-up handed over to, and looks at the process while the option dialog is open.
class RecordingTargets : public StartupTargets {
public:
    void OpenOptionDialog() override {
        calls.push_back(L"option dialog");
        if (whileOpen) whileOpen();
    }
    void OpenEditor(int switchNumber, const std::wstring& file) override {
        calls.push_back(L"editor " + std::to_wstring(switchNumber) + L" " + file);
    }
    void WriteKeyLists() override { calls.push_back(L"key lists"); }
    void RunEditorScript(const std::wstring& file) override { calls.push_back(L"script " + file); }
    std::vector<std::wstring> calls;
    std::function<void()> whileOpen;
};

class StartupTest : public testing::Test {
protected:
    StartupTest() {
        fake.environment().SetModuleFileName(kProgram);
        fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
        fake.files().AddDirectory(L"C:\\Qor\\Lang");
        fake.files().AddFile(L"C:\\Qor\\Lang\\Msg.ja-JP.txt", Utf16Bytes(L"62538\tno language library\r\n", true));
        fake.system().AddLibrary(L"C:\\Qor\\Lang\\Qor.ja-JP.dll");
        for (const wchar_t* name : kCommandListFiles)
            fake.files().AddFile(std::wstring(kUserDir) + name, Utf16Bytes(L"", true));
    }

    std::vector<std::wstring> Run(const std::vector<std::wstring>& arguments) {
        RecordingTargets targets;
        RunStartup(app, targets, arguments);
        return targets.calls;
    }

    FakePlatform fake;
    AppServices app{96};
};

// A switch without the file it needs, or not exactly a known letter, opens the option dialog.
TEST_F(StartupTest, DispatchesOnTheEffectiveSwitch) {
    fake.files().AddFile(L"C:\\f.txt", Utf16Bytes(L"x"));
    // clang-format off
    struct Case { std::vector<std::wstring> arguments; std::vector<std::wstring> calls; };
    const Case cases[] = {
        {{}, {L"option dialog"}},                  {{L"/T", L"C:\\f.txt"}, {}},
        {{L"/T"}, {L"option dialog"}},             {{L"/E"}, {L"option dialog"}},
        {{L"/G", L"anything"}, {L"option dialog"}}, {{L"plain"}, {L"option dialog"}},
        {{L"-E", L"f"}, {L"option dialog"}},       {{L"/E ", L"f"}, {L"option dialog"}},
        {{L"/\u0130", L"f"}, {L"option dialog"}},  // no switch letter, however it folds
        {{L"/e", L"file"}, {L"editor 1 file"}},    {{L"/E", L"a", L"/R", L"b"}, {L"editor 2 b"}},
        {{L"/D", L"c.txt"}, {L"editor 3 c.txt"}},  {{L"a", L"b", L"/d"}, {L"editor 3 b"}},
        {{L"/M", L"m.txt"}, {L"editor 6 m.txt"}},  {{L"/KEYLIST"}, {L"key lists"}},
        {{L"/keylist", L"x"}, {L"key lists"}},     {{L"x", L"/KeyList"}, {L"key lists"}},
        {{L"/A", L"C:\\f.txt"}, {L"script C:\\f.txt"}},
    };
    // clang-format on
    for (const auto& c : cases) EXPECT_EQ(c.calls, Run(c.arguments)) << testing::PrintToString(c.arguments);
    EXPECT_TRUE(fake.prompts().shown().empty());
}

// "/A": a file of one "run" or "exrun" line opens in its editor, anything else runs as a script.
TEST_F(StartupTest, AutomaticSwitchFollowsTheFileKind) {
    const std::wstring opened[] = {L"script C:\\d.txt", L"editor 1 C:\\d.txt", L"editor 2 C:\\d.txt"};
    // clang-format off
    const std::pair<const wchar_t*, int> cases[] = {
        {L"run=notepad.exe", 2}, {L"\uFEFF// comment\r\n\tRUN = x\r\n", 2}, {L"exrun=a\r\n", 1},
        {L"exrun=a\r\nrun=b\r\n", 0}, {L"run=a\r\nrun=b\r\n", 0}, {L"run=a\r\nexec=b\r\n", 0},
        {L"run=\r\nrun=b\r\n", 2}, {L"exrun=   \r\n", 0}, {L"run=a\r\nEOF\r\nrun=b\r\n", 2},
        {L"run=a\r\neof\r\nrun=b\r\n", 0}, {L"//run=a\r\nrunx=b\r\nrun a\r\n", 0}, {L"call=x\r\nrun=a\r\n", 0},
    };
    // clang-format on
    for (const auto& [content, kind] : cases) {
        fake.files().AddFile(L"C:\\d.txt", Utf16Bytes(content));
        EXPECT_EQ(kind, SniffDefinitionFile(L"C:\\d.txt")) << testing::PrintToString(std::wstring(content));
        EXPECT_EQ(std::vector<std::wstring>{opened[kind]}, Run({L"/A", L"C:\\d.txt"}))
            << testing::PrintToString(std::wstring(content));
    }
}

TEST_F(StartupTest, UnreadableAutomaticFileIsToldThenOpenedAsAScript) {
    EXPECT_EQ((std::vector<std::wstring>{L"script C:\\none.txt"}), Run({L"/A", L"C:\\none.txt"}));
    EXPECT_EQ((std::vector<ShownMessage>{{L"Cannot open C:\\none.txt", 0}}), fake.prompts().shown());
    EXPECT_TRUE(fake.system().loadAttempts().empty()) << "the script runs without the language library";
}

TEST_F(StartupTest, MissingLanguageLibraryIsToldAndTheProgramGoesOn) {
    DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
    EXPECT_EQ((std::vector<std::wstring>{L"option dialog"}), Run({}));
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Qor\\Lang\\Qor.en-US.dll"}), fake.system().loadAttempts());
    EXPECT_EQ((std::vector<ShownMessage>{{L"Cannot open message file.\nC:\\Qor\\Lang\\Msg.en-US.txt", 0},
                                         {MessageCatalog::kMissingText, 0}}),
              fake.prompts().shown());
}

// Only the editors read the confirmations, all on when none are stored; the host's window mode and
// whether it comes back at the end are its switch string's.
TEST_F(StartupTest, SettingsReadAtStart) {
    Run({L"/D", L"x"});
    EXPECT_EQ(-1, app.store.Message);
    DirectWriteString(kDirectSettingsPath, L"UserDir", L"D:\\Mine\\");
    SettingsStore store;
    store.SelectSection(L"AppInfo");
    store.WriteInt(L"Alfa", 200);
    store.WriteInt(L"DoubleBuffer", 1);
    store.WriteInt(L"Message", 0x38FB);
    fake.environment().SetVariable(L"QOR_ExCommand", L"3:1:1:2:100:0:0:0:None:x");
    fake.windows().AddHostWindow(0x1111);
    Run({});
    EXPECT_EQ(std::vector<platform::WindowRef>{0x1111}, fake.windows().foreground()) << "reactivation 1 hands back";
    EXPECT_EQ((std::vector<int32_t>{200, 1, -1, 3}),
              (std::vector<int32_t>{app.store.Alfa, app.store.DoubleBuffer, app.store.Message, app.host.windowMode}));
    EXPECT_EQ(L"D:\\Mine\\", app.userDir);
    Run({L"/R", L"x"});
    EXPECT_EQ(0x38FB, app.store.Message);
    // Reading "Settings" creates the key even when nothing is in it.
    std::unique_ptr<platform::RegistryKey> key;
    EXPECT_EQ(0, fake.registry().OpenKey(L"Software\\Tarnwick\\QOR\\Main001\\Settings", key));
}

// The language library, the command lists and the presence mutex are there while the target runs and gone after it.
TEST_F(StartupTest, WhatTheTargetFindsIsHeldForItAndLetGoAfterIt) {
    fake.files().AddFile(std::wstring(kUserDir) + L"PlugInCommand.txt", Utf16Bytes(L"41501\t\t\tx.dll\tPlug-in\r\n"));
    auto state = [&] {
        return std::tuple(fake.system().loadedLibraries(), app.commands.LookupListedCommand(41501),
                          fake.system().HoldsMutex(L"ExCommand.Option.exe"));
    };
    decltype(state()) whileOpen;
    RecordingTargets targets;
    targets.whileOpen = [&] { whileOpen = state(); };
    RunStartup(app, targets, {});
    EXPECT_EQ(std::tuple(1, std::wstring(L"Plug-in"), true), whileOpen);
    EXPECT_EQ(std::tuple(0, std::wstring(), false), state());
    EXPECT_EQ(L"C:\\Qor\\Lang\\Msg.ja-JP.txt", app.messages.path());
    EXPECT_EQ(L"Software\\Tarnwick\\QOR\\Command\\Option", app.commandOptionRoot);
    // A second copy finds the mutex taken and still runs.
    auto first = fake.system().CreatePresenceMutex(L"ExCommand.Option.exe");
    EXPECT_EQ((std::vector<std::wstring>{L"option dialog"}), Run({}));
    EXPECT_TRUE(fake.system().HoldsMutex(L"ExCommand.Option.exe"));
}

}  // namespace
