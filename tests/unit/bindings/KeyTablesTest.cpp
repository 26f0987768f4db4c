#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyTableFiles.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::fake::FakePlatform;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";

class KeyTableFilesTest : public testing::Test {
protected:
    KeyTableFilesTest() { fake.files().AddDirectory(kUserDir); }

    static std::vector<uint8_t> WordsAsBytes(const std::vector<uint16_t>& words) {
        return Utf16Bytes(std::wstring(words.begin(), words.end()));
    }

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

TEST_F(KeyTableFilesTest, LoadingTakesWhatEachFileHolds) {
    const std::wstring dir = kUserDir;
    // 100 bytes: the first 50 words of the command mode.
    std::vector<uint16_t> fifty(50);
    for (int i = 0; i < 50; ++i) fifty[i] = static_cast<uint16_t>(1000 + i);
    fake.files().AddFile(dir + L"CommandMode.key", WordsAsBytes(fifty));
    // Spelt correctly the search mode's file is not the host's.
    fake.files().AddFile(dir + L"SearchMode.key", WordsAsBytes(std::vector<uint16_t>(304, 7)));
    // A long file gives its first 608 bytes.
    std::vector<uint16_t> longer(400, 0x1234);
    longer[303] = 0xABCD;
    fake.files().AddFile(dir + L"Mode5.key", WordsAsBytes(longer));
    // An odd length ends in the middle of a word: its low byte arrives.
    fake.files().AddFile(dir + L"Mode9.key", std::string("\x01\x02\x03", 3));

    KeyTableSet set;
    for (auto& table : set.modes) table.fill(0xBEEF);
    LoadKeyTables(dir, set);
    KeyTableSet expected = DefaultKeyTables();
    expected.modes[0].fill(0xBEEF);
    std::copy(fifty.begin(), fifty.end(), expected.modes[0].begin());
    expected.modes[4].fill(0x1234);
    expected.modes[4][303] = 0xABCD;
    expected.modes[8].fill(0xBEEF);
    expected.modes[8][0] = 0x0201;
    expected.modes[8][1] = 0xBE03;
    EXPECT_EQ(expected.modes, set.modes);
    EXPECT_TRUE(fake.prompts().shown().empty());
}

}  // namespace
