#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "settings/ApplicationGroups.h"
#include "settings/SettingsStore.h"

namespace {

using platform::fake::FakePlatform;
using S = SettingsStore;
using Stored = std::variant<int32_t, std::wstring>;

// One value of a group as the host sees it: where it lives, what an empty registry gives, whether
// this program writes it, and the member a page binds to.
struct Value {
    const wchar_t* section;
    const wchar_t* name;
    int32_t S::*integer;
    std::wstring S::*text;
    Stored defaultValue;
    bool saved;
};

Value Int(const wchar_t* section, const wchar_t* name, int32_t S::*member, int32_t defaultValue, bool saved = true) {
    return {section, name, member, nullptr, defaultValue, saved};
}

Value Text(const wchar_t* section, const wchar_t* name, std::wstring S::*member, std::wstring defaultValue = L"",
           bool saved = true) {
    return {section, name, nullptr, member, defaultValue, saved};
}

struct GroupCase {
    const char* label;
    AppGroup group;
    std::vector<Value> values;  // in the order Load reads and Save writes them
};

constexpr bool kNotSaved = false;

std::vector<GroupCase> Groups() {
    const wchar_t* app = L"AppInfo";
    const wchar_t* set = L"Settings";
    const wchar_t* mouse = L"Mouse";
    auto texts = [](const wchar_t* section, std::initializer_list<std::pair<const wchar_t*, std::wstring S::*>> rows) {
        std::vector<Value> values;
        for (auto [name, member] : rows) values.push_back(Text(section, name, member));
        return values;
    };
    return {
        {"general",
         AppGroup::General,
         {Int(app, L"DisableAnimation", &S::DisableAnimation, 0), Int(app, L"UseCompFolder", &S::UseCompFolder, 1),
          Int(app, L"CasheExCmd", &S::CasheExCmd, 0), Int(app, L"DragHelper", &S::DragHelper, 1),
          Int(app, L"ChgSortAlg", &S::ChgSortAlg, 10),
          Int(app, L"ListReserveVal", &S::ListReserveVal, 100000, kNotSaved), Int(set, L"IME", &S::IME, 1)}},
        {"start-up",
         AppGroup::StartUp,
         {Int(app, L"Alfa", &S::Alfa, 0, kNotSaved), Int(app, L"DoubleBuffer", &S::DoubleBuffer, 0, kNotSaved)}},
        {"message", AppGroup::Message, {Int(app, L"Message", &S::Message, -1)}},
        {"common operation",
         AppGroup::CommonOperation,
         {Int(app, L"InplaceRename", &S::InplaceRename, 1), Int(app, L"DropFolder", &S::DropFolder, 1),
          Int(app, L"CanDrag", &S::CanDrag, 1), Int(app, L"DropExCommand0", &S::DropExCommand0, 0),
          Int(app, L"DropExCommand1", &S::DropExCommand1, 0), Int(app, L"SmartPaste", &S::SmartPaste, 1)}},
        {"incremental search",
         AppGroup::IncrementalSearch,
         {Int(app, L"IncliMentTime", &S::IncliMentTime, 1000), Int(app, L"UseMigemo", &S::UseMigemo, 0),
          Text(app, L"MigemoDll", &S::MigemoDll), Text(app, L"MigemoDic", &S::MigemoDic),
          Int(app, L"MigemoMax", &S::MigemoMax, 2000)}},
        {"standard commands",
         AppGroup::StandardCommands,
         {Int(app, L"StyleMode", &S::StyleMode, 0), Int(app, L"ExitAction", &S::ExitAction, 0),
          Int(app, L"DivTarget", &S::DivTarget, 1), Int(app, L"AllPaneTarget", &S::AllPaneTarget, 0)}},
        {"network",
         AppGroup::Network,
         {Int(app, L"UsePing", &S::UsePing, 0), Int(app, L"NetworkTimeout", &S::NetworkTimeout, 500),
          Int(app, L"NetworkRetry", &S::NetworkRetry, 3), Int(app, L"NoNetwork", &S::NoNetwork, 0, kNotSaved)}},
        {"version check",
         AppGroup::VersionCheck,
         {Int(app, L"VersionCheckDay", &S::VersionCheckDay, 7), Int(app, L"VersionCheckBeta", &S::VersionCheckBeta, 0),
          Text(app, L"VersionCheckTime", &S::VersionCheckTime, L"", kNotSaved)}},
        {"title bar", AppGroup::TitleBar, {Int(app, L"TitleBarType", &S::TitleBarType, 0)}},
        {"other",
         AppGroup::Other,
         {Text(set, L"UserDir", &S::UserDir), Int(set, L"UserDirMode", &S::UserDirMode, 0),
          Int(set, L"DupMutex", &S::DupMutex, 0), Int(set, L"Resident", &S::Resident, 0),
          Text(set, L"NLS", &S::NLS, L".ja-JP", kNotSaved), Int(set, L"MaxScript", &S::MaxScript, 5),
          Int(set, L"EveryFront", &S::EveryFront, 0)}},
        {"key page",
         AppGroup::KeyPage,
         {Int(set, L"CheckMode", &S::CheckMode, 2, kNotSaved), Int(set, L"KeyLayout", &S::KeyLayout, 0, kNotSaved),
          Int(set, L"BarLock", &S::BarLock, 0, kNotSaved), Int(set, L"DefaultDrop", &S::DefaultDrop, 0, kNotSaved),
          Int(set, L"AutoSwitchAllocKeyTime", &S::AutoSwitchAllocKeyTime, 3000),
          Int(set, L"AutoSwitchAllocKey", &S::AutoSwitchAllocKey, 0)}},
        {"gesture",
         AppGroup::Gesture,
         {Int(mouse, L"Gesture", &S::Gesture, 0), Int(mouse, L"GestureCol", &S::GestureCol, 0xFF7F7F),
          Int(mouse, L"GestureSensitivity", &S::GestureSensitivity, 5), Int(mouse, L"TimeOut", &S::TimeOut, 0)}},
        {"event", AppGroup::Event,
         texts(L"Event", {{L"CmdInitInstance", &S::CmdInitInstance},
                          {L"CmdExitInstance", &S::CmdExitInstance},
                          {L"CmdDiskDel", &S::CmdDiskDel},
                          {L"CmdDiskAdd", &S::CmdDiskAdd},
                          {L"Cmd1Minute", &S::Cmd1Minute},
                          {L"Cmd10Minute", &S::Cmd10Minute},
                          {L"Cmd1Hour", &S::Cmd1Hour},
                          {L"CmdDelete", &S::CmdDelete},
                          {L"CmdPaste", &S::CmdPaste},
                          {L"CmdDustBox", &S::CmdDustBox},
                          {L"CmdRecent", &S::CmdRecent},
                          {L"CmdComplete", &S::CmdComplete},
                          {L"CmdListSelChange", &S::CmdListSelChange}})},
        {"sound", AppGroup::Sound,
         texts(L"Sound", {{L"SoundBooting", &S::SoundBooting},
                          {L"SoundExit", &S::SoundExit},
                          {L"SoundShellExec", &S::SoundShellExec},
                          {L"SoundGuestureCursor", &S::SoundGuestureCursor},
                          {L"SoundGuestureGo", &S::SoundGuestureGo},
                          {L"SoundGuestureCancel", &S::SoundGuestureCancel},
                          {L"SoundScript", &S::SoundScript},
                          {L"SoundCommand", &S::SoundCommand},
                          {L"SoundSelect", &S::SoundSelect},
                          {L"SoundBarView", &S::SoundBarView},
                          {L"SoundBarCmd", &S::SoundBarCmd},
                          {L"SoundComplete", &S::SoundComplete},
                          {L"SoundDelete", &S::SoundDelete},
                          {L"SoundPaste", &S::SoundPaste},
                          {L"SoundDustBox", &S::SoundDustBox},
                          {L"SoundRecent", &S::SoundRecent}})},
    };
}

std::wstring PathOf(const std::wstring& section) {
    return SettingsStore::kSectionRoot + section;
}

// The values of a key in the order the registry holds them (the order of their creation).
std::vector<std::pair<std::wstring, Stored>> ValuesOf(const std::wstring& section) {
    std::vector<std::pair<std::wstring, Stored>> values;
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.OpenKey(PathOf(section), key) != 0) return values;
    std::wstring name;
    uint32_t type = 0;
    std::vector<uint8_t> data(4096);
    for (uint32_t index = 0;; ++index) {
        uint32_t size = static_cast<uint32_t>(data.size());
        if (key->EnumValue(index, platform::kMaxValueNameChars, name, &type, data.data(), &size) != 0) break;
        if (type == platform::kRegDword) {
            values.emplace_back(name, static_cast<int32_t>(data[0] | data[1] << 8 | data[2] << 16 |
                                                           static_cast<uint32_t>(data[3]) << 24));
        } else {
            std::wstring text;
            // Readers stop at a terminator, which the system may have stored behind the text.
            for (uint32_t i = 0; i + 1 < size && (data[i] || data[i + 1]); i += 2)
                text.push_back(static_cast<wchar_t>(data[i] | data[i + 1] << 8));
            values.emplace_back(name, text);
        }
    }
    return values;
}

// Puts a value where the host would have left it, through a store of its own.
void Store(const Value& value, const Stored& stored) {
    SettingsStore other;
    other.SelectSection(value.section);
    if (value.integer)
        other.WriteInt(value.name, std::get<int32_t>(stored));
    else
        other.WriteString(value.name, std::get<std::wstring>(stored));
}

Stored MemberOf(const SettingsStore& store, const Value& value) {
    if (value.integer) return store.*value.integer;
    return store.*value.text;
}

void SetMember(SettingsStore& store, const Value& value, const Stored& stored) {
    if (value.integer)
        store.*value.integer = std::get<int32_t>(stored);
    else
        store.*value.text = std::get<std::wstring>(stored);
}

// Distinct per value, and outside every page's range, so that a value bound to the wrong member or
// refused on load shows.
Stored StoredValue(const Value& value, int index, int generation) {
    if (value.integer) return static_cast<int32_t>(700000 + 1000 * generation + index);
    return L"text " + std::to_wstring(generation) + L"." + std::to_wstring(index);
}

std::set<std::wstring> SectionsOf(const GroupCase& c) {
    std::set<std::wstring> sections;
    for (const Value& value : c.values) sections.insert(value.section);
    return sections;
}

// Each routine selects its own section: nothing may depend on what was selected before.
void Load(SettingsStore& store, AppGroup group) {
    store.SelectSection(L"Elsewhere");
    LoadGroup(store, group);
}

void Save(SettingsStore& store, AppGroup group) {
    store.SelectSection(L"Elsewhere");
    SaveGroup(store, group);
}

TEST(ApplicationGroups, AnEmptyRegistryGivesTheDefaultsAndSaveWritesOnlyItsOwnValuesInOrder) {
    for (const GroupCase& c : Groups()) {
        FakePlatform fake;
        SettingsStore store;
        Load(store, c.group);
        for (const Value& value : c.values)
            EXPECT_EQ(value.defaultValue, MemberOf(store, value)) << c.label << ": " << value.name;
        Save(store, c.group);
        // Values the host owns (ListReserveVal, NLS, ...) are never created.
        for (const std::wstring& section : SectionsOf(c)) {
            std::vector<std::pair<std::wstring, Stored>> expected;
            for (const Value& value : c.values)
                if (value.saved && value.section == section) expected.emplace_back(value.name, value.defaultValue);
            EXPECT_EQ(expected, ValuesOf(section)) << c.label << " in " << section;
        }
        EXPECT_TRUE(ValuesOf(L"Elsewhere").empty()) << c.label;
    }
}

TEST(ApplicationGroups, StoredValuesLoadAndOnlyOwnValuesAreWrittenBack) {
    for (const GroupCase& c : Groups()) {
        FakePlatform fake;
        for (int i = static_cast<int>(c.values.size()) - 1; i >= 0; --i)
            Store(c.values[i], StoredValue(c.values[i], i, 1));
        SettingsStore store;
        Load(store, c.group);
        for (int i = 0; i < static_cast<int>(c.values.size()); ++i) {
            const Value& value = c.values[i];
            EXPECT_EQ(StoredValue(value, i, 1), MemberOf(store, value)) << c.label << ": " << value.name;
            SetMember(store, value, StoredValue(value, i, 2));
        }
        Save(store, c.group);
        for (int i = 0; i < static_cast<int>(c.values.size()); ++i) {
            const Value& value = c.values[i];
            SettingsStore reader;
            LoadGroup(reader, c.group);
            // A saved value carries the member (EveryFront too, though no control shows it); one the host
            // owns stays as the host left it.
            EXPECT_EQ(StoredValue(value, i, value.saved ? 2 : 1), MemberOf(reader, value))
                << c.label << ": " << value.name;
        }
    }
}

TEST(ApplicationGroups, ContextMenuKeepsOnlyItsTwelveChecks) {
    struct Case {
        const char* label;
        std::optional<int32_t> stored;
        uint32_t checks;  // bit n is check n after Load
        uint32_t saved;
    };
    const Case cases[] = {
        {"absent", std::nullopt, 0x333, 0x33333333},
        {"zero resets the upper bits", 0, 0x000, 0x33333000},
        {"all bits", -1, 0xFFF, 0x33333FFF},
        {"upper bits dropped", 0x7ABCDA5C, 0xA5C, 0x33333A5C},
        {"bit 12 is no check", 0x00001000, 0x000, 0x33333000},
    };
    for (const Case& c : cases) {
        FakePlatform fake;
        if (c.stored) Store(Int(L"Mouse", L"ContextMenu", &S::ContextMenu, 0), *c.stored);
        SettingsStore store;
        Load(store, AppGroup::ContextMenu);
        for (int n = 0; n < kContextMenuChecks; ++n)
            EXPECT_EQ(static_cast<int32_t>((c.checks >> n) & 1), store.ContextMenuChecks[n]) << c.label << " bit " << n;
        Save(store, AppGroup::ContextMenu);
        EXPECT_EQ((std::vector<std::pair<std::wstring, Stored>>{{L"ContextMenu", static_cast<int32_t>(c.saved)}}),
                  ValuesOf(L"Mouse"))
            << c.label;
    }
}

TEST(ApplicationGroups, ContextMenuSavesTheChecksAsTheUserLeftThem) {
    FakePlatform fake;
    SettingsStore store;
    Load(store, AppGroup::ContextMenu);
    store.ContextMenuChecks.fill(0);
    store.ContextMenuChecks[0] = 1;
    store.ContextMenuChecks[11] = 1;
    store.ContextMenu = 0x12345678;  // the member itself is rebuilt, not written as it stands
    Save(store, AppGroup::ContextMenu);
    SettingsStore reader;
    LoadGroup(reader, AppGroup::ContextMenu);
    EXPECT_EQ(0x33333801, reader.ContextMenu);
}

TEST(ApplicationGroups, GeneralSaveWritesImeIntoSettingsBesideThePagesOtherValues) {
    FakePlatform fake;
    Store(Int(L"Settings", L"UserDirMode", &S::UserDirMode, 0), 2);
    SettingsStore store;
    Load(store, AppGroup::General);
    store.IME = 0;
    Save(store, AppGroup::General);
    EXPECT_EQ((std::vector<std::pair<std::wstring, Stored>>{{L"UserDirMode", 2}, {L"IME", 0}}), ValuesOf(L"Settings"));
}

}  // namespace
