#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyTableFiles.h"
#include "platform/fake/FakePlatform.h"
#include "services/Tokenizer.h"

namespace {

using platform::fake::FakePlatform;

constexpr const wchar_t* kUserDir = L"C:\\Users\\tester\\Qor\\";

// The built-in tables as the documentation of the key modes gives them: mode range, modifier,
// then "key command" pairs. Transcribed apart from the program's own table.
struct DocumentedRow {
    int firstMode;
    int lastMode;
    int modifier;
    const wchar_t* keys;
};
const DocumentedRow kDocumented[] = {
    {0, 0, 0,
     L"A 42004; B 40002; C 42014; D 42013; E 40001; F 35512; G 35801; H 35800; I 42005; J 33011; K 42017; "
     L"L 42023; M 42015; N 57600; P 42007; Q 33010; R 42012; S 36230; T 42003; U 42008; V 40003; W 36240; "
     L"X 42022; Z 35703; 1 400; 2 403; 3 401; 4 407; 5 402; 6 410; N1 35840; N2 35841; N3 35842; N4 35843; "
     L"N5 35844; N6 35845; N7 35846; N8 35847; N9 35848; N0 35849; F1 35515; F2 35209; F3 35512; F4 35701; "
     L"F5 33301; F6 35808; F7 57642; F12 35503; Del 35207; BS 36200; , 36909; . 36905; + 35705; - 33300; "
     L"@ 42150; [ 36901; \\ 36201; ] 36902; Spc 35606; Tab 35808; Ent 35900"},
    {0, 0, 1, L"F5 33301; Del 35207; Ins 57637; Spc 35607; Tab 35809; Ent 40503"},
    {0, 0, 2,
     L"A 57642; C 57634; D 35702; F 35505; H 35508; I 35692; J 36191; K 36190; L 36210; N 35053; O 35690; "
     L"S 35706; V 57637; W 35112; X 57635; Y 57644; Z 57643; F4 35112; F5 33320; Del 57635; Ins 57634; "
     L", 36911; . 36907; Spc 35608; Tab 35800; Ent 40501"},
    {0, 0, 3, L"C 42026; M 42027; P 42024; U 42025; Spc 35607; Tab 35801; Ent 35900"},
    {1, 1, 0,
     L"N1 35840; N2 35841; N3 35842; N4 35843; N5 35844; N6 35845; N7 35846; N8 35847; N9 35848; N0 35849; "
     L"F1 35515; F2 35209; F3 35512; F4 35701; F5 33301; F6 35808; F7 57642; F12 35502; Del 35207; BS 36200; "
     L"\\ 36201; Spc 35606; Tab 35808; Ent 35900"},
    {1, 1, 1, L"F5 33301; Del 35207; Ins 57637; Spc 35607; Tab 35809; Ent 35900"},
    {1, 1, 2,
     L"A 57642; C 57634; D 35702; F 35505; H 35508; I 35692; J 36191; K 36190; N 35053; O 35690; S 35706; "
     L"V 57637; W 35112; X 57635; Y 57644; Z 57643; F4 35112; F5 33320; Del 57635; Ins 57634; Spc 35608; "
     L"Tab 35800; Ent 35900"},
    {1, 1, 3, L"Spc 35607; Tab 35801; Ent 35900"},
    {2, 8, 0,
     L"F1 35515; F2 35209; F3 35512; F4 35701; F5 33301; F6 35808; F7 57642; F12 35502; Del 35207; BS 36200; "
     L"\\ 36201; Spc 35606; Tab 35808; Ent 35900"},
    {2, 8, 1, L"F5 33301; Del 35207; Ins 57637; Spc 35607; Tab 35809; Ent 35900"},
    {2, 8, 2,
     L"A 57642; C 57634; D 35702; F 35505; H 35508; J 36191; K 36190; N 35053; S 35706; V 57637; W 35112; "
     L"X 57635; Y 57644; Z 57643; F4 35112; Del 57635; Ins 57634; Spc 35608; Tab 35800; Ent 35900"},
    {2, 8, 3, L"Spc 35607; Tab 35801; Ent 35900"},
};

// The key names in the documented order, written out.
const wchar_t* const kDocumentedNames =
    L"A B C D E F G H I J K L M N O P Q R S T U V W X Y Z 1 2 3 4 5 6 7 8 9 0 N1 N2 N3 N4 N5 N6 N7 N8 N9 N0 "
    L"F1 F2 F3 F4 F5 F6 F7 F8 F9 F11 F12 Del Ins BS , . + - : / @ [ \\ ] ^ _ Spc Esc Tab Ent";

std::vector<std::wstring> DocumentedNames() {
    std::vector<std::wstring> names;
    Tokenize(names, kDocumentedNames, L' ', false, false);
    return names;
}

// Words by (mode, modifier, key name), 0 where the documentation names nothing.
std::vector<std::vector<std::vector<uint16_t>>> DocumentedWords() {
    const std::vector<std::wstring> names = DocumentedNames();
    std::vector<std::vector<std::vector<uint16_t>>> words(
        9, std::vector<std::vector<uint16_t>>(4, std::vector<uint16_t>(names.size())));
    for (const DocumentedRow& row : kDocumented) {
        std::vector<std::wstring> pairs;
        Tokenize(pairs, row.keys, L';', true, false);
        for (const std::wstring& pair : pairs) {
            size_t blank = pair.rfind(L' ');
            auto place = std::find(names.begin(), names.end(), pair.substr(0, blank));
            EXPECT_NE(names.end(), place) << testing::PrintToString(pair);
            if (place == names.end()) continue;
            for (int mode = row.firstMode; mode <= row.lastMode; ++mode) {
                words[mode][row.modifier][place - names.begin()] =
                    static_cast<uint16_t>(std::stoi(pair.substr(blank + 1)));
            }
        }
    }
    return words;
}

TEST(KeyTables, DefaultsAreTheDocumentedTables) {
    const std::vector<std::wstring> names = DocumentedNames();
    ASSERT_EQ(static_cast<size_t>(kKeyCount), names.size());
    for (int k = 0; k < kKeyCount; ++k) EXPECT_EQ(names[k], KeyNameTable[k]) << k;
    const auto words = DocumentedWords();
    const KeyTableSet& defaults = DefaultKeyTables();
    for (int mode = 0; mode < kKeyModeCount; ++mode) {
        for (int modifier = 0; modifier < kModifierCount; ++modifier) {
            for (int key = 0; key < kKeyCount; ++key) {
                EXPECT_EQ(words[mode][modifier][key], defaults.Word(mode, modifier, key))
                    << "mode " << mode << " modifier " << modifier << " key " << testing::PrintToString(names[key]);
            }
        }
    }
    // The file's word order: (modifier + 4 * mode) * 76 + key.
    EXPECT_EQ(35515, defaults.modes[1][46]);
    EXPECT_EQ(40503, defaults.modes[0][1 * 76 + 75]);
}

class KeyTableFilesTest : public testing::Test {
protected:
    KeyTableFilesTest() { fake.files().AddDirectory(kUserDir); }

    static std::vector<uint8_t> WordsAsBytes(const std::vector<uint16_t>& words) {
        std::vector<uint8_t> bytes;
        for (uint16_t word : words) {
            bytes.push_back(static_cast<uint8_t>(word & 0xFF));
            bytes.push_back(static_cast<uint8_t>(word >> 8));
        }
        return bytes;
    }

    FakePlatform fake;
};

TEST_F(KeyTableFilesTest, FileNames) {
    const std::wstring dir = kUserDir;
    const std::wstring expected[] = {L"CommandMode.key", L"SerchMode.key", L"Mode3.key", L"Mode4.key", L"Mode5.key",
                                     L"Mode6.key",       L"Mode7.key",     L"Mode8.key", L"Mode9.key"};
    for (int mode = 0; mode < kKeyModeCount; ++mode) EXPECT_EQ(dir + expected[mode], KeyFilePath(dir, mode));
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
    const KeyTableSet& defaults = DefaultKeyTables();
    for (int i = 0; i < 50; ++i) EXPECT_EQ(1000 + i, set.modes[0][i]) << i;
    for (int i = 50; i < 304; ++i) EXPECT_EQ(0xBEEF, set.modes[0][i]) << i;
    EXPECT_EQ(defaults.modes[1], set.modes[1]);
    EXPECT_EQ(0x1234, set.modes[4][0]);
    EXPECT_EQ(0xABCD, set.modes[4][303]);
    EXPECT_EQ(0x0201, set.modes[8][0]);
    EXPECT_EQ(0xBE03, set.modes[8][1]);
    EXPECT_EQ(0xBEEF, set.modes[8][2]);
    for (int mode : {2, 3, 5, 6, 7}) EXPECT_EQ(defaults.modes[mode], set.modes[mode]) << mode;
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(KeyTableFilesTest, SavedTablesReadBackAsTheyWere) {
    const std::wstring dir = kUserDir;
    KeyTableSet saved = DefaultKeyTables();
    saved.Word(0, kModifierCtrlShift, KeyIndex(L"Ent")) = 0x8001;
    saved.Word(1, kModifierNone, KeyIndex(L"A")) = 41001;
    saved.Word(8, kModifierShift, KeyIndex(L"Esc")) = 65535;
    // A directory where a file should be: that mode is skipped and the rest are written.
    fake.files().AddDirectory(dir + L"Mode4.key");
    SaveKeyTables(dir, saved);

    std::vector<uint8_t> bytes;
    ASSERT_TRUE(fake.files().ReadFile(dir + L"CommandMode.key", bytes));
    ASSERT_EQ(608u, bytes.size());
    const size_t enter = 2 * (3 * 76 + 75);
    EXPECT_EQ(0x01, bytes[enter]);
    EXPECT_EQ(0x80, bytes[enter + 1]);
    ASSERT_TRUE(fake.files().ReadFile(dir + L"SerchMode.key", bytes));
    EXPECT_EQ(608u, bytes.size());

    KeyTableSet loaded;
    LoadKeyTables(dir, loaded);
    EXPECT_EQ(saved.modes[0], loaded.modes[0]);
    EXPECT_EQ(saved.modes[1], loaded.modes[1]);
    EXPECT_EQ(saved.modes[8], loaded.modes[8]);
    EXPECT_EQ(DefaultKeyTables().modes[3], loaded.modes[3]);
}

}  // namespace
