#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyTableFiles.h"
#include "platform/fake/FakePlatform.h"

namespace {

using platform::fake::FakePlatform;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";

class KeyTableFilesTest : public testing::Test {
protected:
    KeyTableFilesTest() { fake.files().AddDirectory(kUserDir); }

    FakePlatform fake;
};

TEST_F(KeyTableFilesTest, SavedTablesReadBackAsTheyWere) {
    const std::wstring dir = kUserDir;
    KeyTableSet saved = DefaultKeyTables();
    saved.Word(0, kModifierCtrlShift, KeyIndex(L"Ent")) = 0x8001;
    saved.Word(1, kModifierNone, KeyIndex(L"A")) = 41001;
    saved.Word(8, kModifierShift, KeyIndex(L"Esc")) = 65535;
    // A directory where a file should be: that mode is skipped and the rest are written.
    fake.files().AddDirectory(dir + L"Mode4.key");
    SaveKeyTables(dir, saved);

    std::set<std::wstring> names;
    for (const platform::FindData& found : fake.files().FindAll(dir + L"*.key", platform::FindStyle::Plain))
        names.insert(found.name);
    EXPECT_EQ((std::set<std::wstring>{L"CommandMode.key", L"SerchMode.key", L"Mode3.key", L"Mode4.key", L"Mode5.key",
                                      L"Mode6.key", L"Mode7.key", L"Mode8.key", L"Mode9.key"}),
              names);
    const std::string bytes = fake.files().FileText(dir + L"CommandMode.key");
    EXPECT_EQ((std::vector<size_t>{608, 608}),
              (std::vector<size_t>{bytes.size(), fake.files().FileText(dir + L"SerchMode.key").size()}));
    const size_t enter = 2 * (3 * 76 + 75);  // the file's word order: (modifier + 4 * mode) * 76 + key
    EXPECT_EQ("\x01\x80", bytes.substr(enter, 2));

    KeyTableSet loaded;
    LoadKeyTables(dir, loaded);
    KeyTableSet expected = saved;
    expected.modes[3] = DefaultKeyTables().modes[3];  // Mode4.key could not be written
    EXPECT_EQ(expected.modes, loaded.modes);
}

}  // namespace
