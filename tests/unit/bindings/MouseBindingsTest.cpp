#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "app/AppServices.h"
#include "bindings/GestureTable.h"
#include "bindings/WheelScript.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"
#include "unit/settings/RegistryValues.h"

namespace {

using platform::fake::FakePlatform;

// The arrow buttons and BS pressed in turn, as the trail dialog lets them through.
TEST(GestureTrail, ButtonsComposeATrailOfChangesOnly) {
    struct Case {
        const wchar_t* pressed;  // B is BS
        const wchar_t* trail;
    };
    const Case cases[] = {
        {L"\u2191\u2191", L"\u2191"},
        {L"\u2191\u2193\u2191", L"\u2191\u2193\u2191"},
        {L"B", L""},
        {L"\u2190\u2192B", L"\u2190"},
        {L"\u2190B\u2190", L"\u2190"},
        {L"\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2190",
         L"\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193"},
        {L"\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193B\u2190",
         L"\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2193\u2191\u2190"},
    };
    for (const Case& c : cases) {
        std::wstring trail;
        for (const wchar_t* key = c.pressed; *key; ++key) {
            if (*key == L'B')
                RemoveLastDirection(trail);
            else
                AppendDirection(trail, *key);
        }
        EXPECT_EQ(c.trail, trail) << testing::PrintToString(std::wstring(c.pressed));
    }
}

// Shown with arrows, written back with letters; other characters stay, and an empty table leaves an empty key.
TEST(GestureTrail, TheTableGoesThroughTheRegistryAsLetters) {
    struct Case {
        NamedValues stored;
        std::vector<GestureBinding> shown;
        NamedValues written;
    };
    const Case cases[] = {
        {{{L"UD", 33301}, {L"L", 36203}},
         {{L"\u2191\u2193", 33301}, {L"\u2190", 36203}},
         {{L"UD", 33301}, {L"L", 36203}}},
        {{{L"Ux-r", 7}}, {{L"\u2191x-r", 7}}, {{L"Ux-r", 7}}},
        {{{L"\u2192D", 9}}, {{L"\u2192\u2193", 9}}, {{L"RD", 9}}},
        {{{L"x", 1}}, {{L"x", 1}}, {}},
        {{}, {}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.shown.size()));
        FakePlatform fake;
        for (const auto& [name, value] : c.stored) StoreValue(L"Gesture", name, value);
        EXPECT_EQ(c.shown, ReadGestureTable());
        std::vector<GestureBinding> kept = c.shown;
        if (!kept.empty() && kept.back().trail == L"x") kept.pop_back();  // the user deleted that row
        SettingsStore store;
        WriteGestureTable(store, kept);
        EXPECT_EQ(c.written, ValuesOf(L"Gesture"));
        std::unique_ptr<platform::RegistryKey> key;
        EXPECT_EQ(platform::kRegistryOk,
                  fake.registry().OpenKey(SettingsStore::kSectionRoot + std::wstring(L"Gesture"), key));
    }
    FakePlatform none;
    EXPECT_TRUE(ReadGestureTable().empty()) << "no key at all";
}

TEST(WheelScript, TheNameSaysEveryBoxAndTheTestWantsAHeldOne) {
    struct Case {
        uint32_t boxes;
        const wchar_t* name;
        bool testable;  // with the scripts in use
    };
    const Case cases[] = {
        {0, L"_ListWheel--------D.txt", false},
        {kWheelUp, L"_ListWheel--------U.txt", false},
        {kWheelMiddle | kWheelCtrl | kWheelUp, L"_ListWheel--M---C-U.txt", true},
        {kWheelLeft | kWheelRight | kWheelMiddle | kWheelBack | kWheelForward | kWheelAlt | kWheelCtrl | kWheelShift,
         L"_ListWheelLRM12ACSD.txt", true},
        {kWheelShift, L"_ListWheel-------SD.txt", true},
        {kWheelBack | kWheelUp, L"_ListWheel---1----U.txt", true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.name, WheelScriptName(c.boxes));
        EXPECT_EQ(c.testable, WheelScriptTestable(1, c.boxes)) << c.boxes;
        EXPECT_FALSE(WheelScriptTestable(0, c.boxes)) << c.boxes;
    }
    std::set<std::wstring> names;
    for (uint32_t boxes = 0; boxes < (1u << kWheelBoxes); ++boxes) names.insert(WheelScriptName(boxes));
    EXPECT_EQ(512u, names.size()) << "one script per combination";
}

// A missing script is made (a byte order mark alone) only on Yes; a missing folder says so.
TEST(WheelScript, TheTestOpensExistingScriptsAndMakesMissingOnesOnlyWhenAsked) {
    struct Case {
        const char* label;
        bool exists;
        bool folder;
        int answer;
        std::vector<std::wstring> messages;  // shown in order
        std::vector<uint8_t> file;           // empty: no file
    };
    const std::vector<uint8_t> script = {0xFF, 0xFE, 'x', 0};
    const std::wstring path = L"C:\\U\\Script\\_ListWheel--M---C-U.txt";
    const std::wstring question = L"create " + path + L"?";
    const std::wstring noEditor = L"Cannot read C:\\U\\Script\\Editor.txt";  // the editor script was run
    const Case cases[] = {
        {"existing", true, true, platform::kAnswerYes, {noEditor}, script},
        {"missing, No", false, true, platform::kAnswerNo, {question}, {}},
        {"missing, Yes", false, true, platform::kAnswerYes, {question, noEditor}, {0xFF, 0xFE}},
        {"no folder", false, false, platform::kAnswerYes, {question, L"cannot create"}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        FakePlatform fake;
        fake.files().AddDrive(L'C');
        fake.files().AddDirectory(L"C:\\U");
        if (c.folder) fake.files().AddDirectory(L"C:\\U\\Script");
        if (c.exists) fake.files().AddFile(path, script);
        DirectWriteInt(kDirectSettingsPath, L"UserDirMode", 2);
        DirectWriteString(kDirectSettingsPath, L"UserDir", L"C:\\U\\");
        fake.files().AddFile(L"C:\\Msg.txt", Utf16Bytes(L"63005\tcreate %s?\r\n62324\tcannot create\r\n", true));
        AppServices app{96};
        app.messages.SetPath(L"C:\\Msg.txt");
        fake.prompts().Answer(c.answer);
        OpenWheelScript(app, L"_ListWheel--M---C-U.txt");
        std::vector<std::wstring> shown;
        for (const auto& message : fake.prompts().shown()) shown.push_back(message.text);
        EXPECT_EQ(c.messages, shown);
        std::vector<uint8_t> bytes;
        fake.files().ReadFile(path, bytes);
        EXPECT_EQ(c.file, bytes);
    }
}

}  // namespace
