#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pages/EventFileRows.h"
#include "platform/fake/FakePlatform.h"
#include "settings/UserDirectories.h"
#include "unit/settings/RegistryValues.h"

namespace {

// Each row stands for the value at its position; the disk rows are crossed on purpose.
TEST(EventFileRows, RowsAreTheirValuesAndAllAreWritten) {
    // clang-format off
    struct Case { const EventFileRows& rows; const wchar_t* section; size_t count; int row; std::wstring value; };
    const Case cases[] = {
        {kSoundRows, L"Sound", 16, 0, L"SoundBooting"}, {kSoundRows, L"Sound", 16, 3, L"SoundScript"},
        {kSoundRows, L"Sound", 16, 8, L"SoundGuestureCursor"}, {kSoundRows, L"Sound", 16, 15, L"SoundRecent"},
        {kEventRows, L"Event", 13, 0, L"CmdInitInstance"}, {kEventRows, L"Event", 13, 2, L"CmdDiskAdd"},
        {kEventRows, L"Event", 13, 3, L"CmdDiskDel"}, {kEventRows, L"Event", 13, 12, L"CmdListSelChange"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.value);
        platform::fake::FakePlatform fake;
        SettingsStore store;
        LoadGroup(store, c.rows.group);
        std::vector<std::wstring> files(c.count);
        files[static_cast<size_t>(c.row)] = L"chime.wav";
        SetRowFiles(store, c.rows, files);
        SaveGroup(store, c.rows.group);
        const NamedValues stored = ValuesOf(c.section);
        ASSERT_EQ(c.count, stored.size());
        for (const auto& [name, value] : stored) {
            EXPECT_EQ(name == c.value ? L"chime.wav" : L"", std::get<std::wstring>(value)) << name;
        }
        SettingsStore reread;
        LoadGroup(reread, c.rows.group);
        EXPECT_EQ(files, RowFiles(reread, c.rows));
    }
}

// The folder of each page, and a chosen file counts by its bare name in that folder.
TEST(EventFileRows, ChosenFilesCountByTheirNameInTheFolder) {
    platform::fake::FakePlatform fake;
    fake.environment().SetModuleFileName(L"C:\\Qor\\Command\\Option\\Option.exe");
    fake.files().AddFile(L"C:\\Qor\\Command\\Sound\\chime.wav", std::string_view());
    fake.files().AddFile(L"C:\\Users\\Me\\Qor\\Script\\tidy.txt", std::string_view());
    UserDirectories directories;
    const std::wstring sounds = EventFileFolder(kSoundRows, directories);
    EXPECT_EQ(L"C:\\Qor\\Command\\Sound\\", sounds);
    // clang-format off
    struct Case { std::wstring folder; std::wstring chosen; std::optional<std::wstring> kept; };
    const Case cases[] = {
        {sounds, L"C:\\Qor\\Command\\Sound\\chime.wav", L"chime.wav"},
        {sounds, L"D:\\Elsewhere\\chime.wav", L"chime.wav"},  // a namesake elsewhere is as good
        {sounds, L"D:\\Elsewhere\\bell.wav", std::nullopt},
        {L"C:\\Users\\Me\\Qor\\Script\\", L"C:\\Users\\Me\\Qor\\Script\\tidy.txt", L"tidy.txt"},
        {sounds, L"C:\\Qor\\Command\\Sound\\", std::nullopt},
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.kept, AcceptedRowFile(c.folder, c.chosen)) << c.chosen;
}

}  // namespace
