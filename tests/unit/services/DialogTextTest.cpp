#include <gtest/gtest.h>

#include <optional>

#include "unit/Utf16.h"
#include "platform/fake/FakePlatform.h"
#include "services/DialogLanguage.h"
#include "services/DialogText.h"
#include "settings/SettingsStore.h"

// Found by gtest beside the type it prints.
static void PrintTo(const DialogTextOperation& operation, std::ostream* os) {
    static const char* const kNames[] = {"SetTitle", "ResetCombo", "AddComboEntry", "SetControlText"};
    *os << kNames[static_cast<int>(operation.kind)] << "(" << operation.id << ", "
        << testing::PrintToString(operation.text) << ")";
}

namespace {

using platform::fake::FakePlatform;
using Kind = DialogTextOperation::Kind;
using Operations = std::vector<DialogTextOperation>;

// The fake environment's program is C:\Qor\Tools\Option\Option.exe.
constexpr const wchar_t* kTextFile = L"C:\\Qor\\Tools\\Option\\.en-US\\Option\\159.txt";
constexpr int32_t kDialogId = 159;

// The operations in short.
const auto Title = [](std::wstring text) { return DialogTextOperation{Kind::SetTitle, 0, std::move(text)}; };
const auto Text = [](int32_t id, std::wstring text) { return DialogTextOperation{Kind::SetControlText, id, text}; };
const auto Reset = [](int32_t id) { return DialogTextOperation{Kind::ResetCombo, id, L""}; };
const auto Entry = [](int32_t id, std::wstring text) { return DialogTextOperation{Kind::AddComboEntry, id, text}; };

// A dialog that shows fixed content and records what the file does to it, in the same terms.
class RecordingDialog : public LocalisableDialog {
public:
    void SetTitle(const std::wstring& text) override { applied.push_back(Title(text)); }
    void ResetCombo(int32_t id) override { applied.push_back(Reset(id)); }
    void AddComboEntry(int32_t id, const std::wstring& text) override { applied.push_back(Entry(id, text)); }
    void SetControlText(int32_t id, const std::wstring& text) override { applied.push_back(Text(id, text)); }
    DialogContent Content() override { return ++contentReads, content; }

    DialogContent content{L"設定", {{1001, L"Static", L"名前", {}}}};
    Operations applied;
    int contentReads = 0;
};

DialogTextLocation Location() {
    return LocateDialogText(L"C:\\Qor\\Tools\\Option\\Option.exe", L".en-US", kDialogId);
}

std::vector<uint8_t> WrittenBytes(FakePlatform& fake) {
    std::vector<uint8_t> bytes;
    fake.files().ReadFile(kTextFile, bytes);
    return bytes;
}

Operations Read(FakePlatform& fake, std::wstring_view text) {
    fake.files().AddFile(kTextFile, Utf16Bytes(text, true));
    Operations operations;
    EXPECT_TRUE(ReadDialogText(kTextFile, operations));
    return operations;
}

TEST(DialogText, ImportTurnsLinesIntoOperations) {
    // clang-format off
    struct Case { const char* label; std::wstring text; Operations expected; };
    const std::wstring longest(32767 - 12, L'x');
    const Case cases[] = {
        {"title and controls", L"Settings\r\n1001\tStatic\tName\r\n1002\tButton\t&Browse...\r\n",
         {Title(L"Settings"), Text(1001, L"Name"), Text(1002, L"&Browse...")}},
        {"an empty title line keeps the title, and a later single field is no title",
         L"\r\nSettings\r\n1001\tStatic\tName", {Text(1001, L"Name")}},
        {"a blank title line counts as the first line", L" \t \r\nSettings", {}},
        {"two fields first are a control line", L"1003\tComboBoxStart\r\nSettings", {Reset(1003)}},
        {"comments come before the title and anywhere else",
         L"// translated by hand\r\nSettings\r\n  // 1001\tStatic\tName\r\n", {Title(L"Settings")}},
        {"EOF ends the file, blanks around it too", L"Settings\r\n  EOF \r\n1001\tStatic\tName", {Title(L"Settings")}},
        {"id -1 names no control", L"T\r\n-1\tStatic\tx\r\n-1\tComboBoxStart\r\n-1\tComboBox\ty", {Title(L"T")}},
        {"ids as _wtoi reads them", L"T\r\n12abc\tStatic\tx\r\n0x10\tStatic\ty\r\n+7\tStatic\tz",
         {Title(L"T"), Text(12, L"x"), Text(0, L"y"), Text(7, L"z")}},
        {"four fields and two fields other than a combo start are ignored",
         L"T\r\n1001\tStatic\tx\ty\r\n1001\tStatic\r\n1001\tComboboxStart", {Title(L"T")}},
        {"an empty text trims away to two fields", L"T\r\n1001\tStatic\t  ", {Title(L"T")}},
        {"an empty class is kept, an empty id is trimmed away", L"T\r\n1001\t\tx\r\n\tStatic\ty",
         {Title(L"T"), Text(1001, L"x")}},
        {"escapes turn back in control text only", L"T\r\n1001\tStatic\ta\\tb\\nc\\rd\\\\n\r\n1003\tComboBox\ta\\tb",
         {Title(L"T"), Text(1001, L"a\tb\nc\rd\\\n"), Entry(1003, L"a\\tb")}},
        {"combo reset and fill in file order; the class word is matched exactly",
         L"T\r\n1003\tComboBoxStart\r\n1003\tComboBox\tone\r\n1003\tComboBox\ttwo\r\n1003\tcombobox\tthree",
         {Title(L"T"), Reset(1003), Entry(1003, L"one"), Entry(1003, L"two"), Text(1003, L"three")}},
        {"byte order marks anywhere are removed, blanks trimmed", L"\uFEFF  Set\uFEFFtings \r\n  1001\tStatic\t Name  ",
         {Title(L"Settings"), Text(1001, L" Name")}},
        {"a line over 32,767 characters ends the reading",
         L"T\r\n1001\tStatic\t" + std::wstring(32767, L'x') + L"\r\n1002\tStatic\ty", {Title(L"T")}},
        {"a last line of exactly 32,767 characters is read", L"T\r\n1001\tStatic\t" + longest,
         {Title(L"T"), Text(1001, longest)}},
        {"a byte order mark alone is a file read", L"", {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        FakePlatform fake;
        EXPECT_EQ(c.expected, Read(fake, c.text)) << c.label;
    }
    FakePlatform fake;
    Operations operations;
    EXPECT_FALSE(ReadDialogText(kTextFile, operations)) << "no file";
    fake.files().AddFile(kTextFile, std::vector<uint8_t>{});
    EXPECT_FALSE(ReadDialogText(kTextFile, operations)) << "an empty file";
}

TEST(DialogText, ExportWritesTheFileByteForByte) {
    FakePlatform fake;
    // clang-format off
    DialogContent content{L"設定", {
        {1001, L"Static", L"名前:\ta\r\nb", {}}, {1002, L"Button", L"&OK", {}},
        {1003, L"ComboBox", L"shown", {L"one\ttab", L"two\\n"}}, {1004, L"Edit", L"typed", {}},
        {1005, L"SysListView32", L"list", {}}, {1006, L"SysTabControl32", L"tabs", {}}, {1007, L"Static", L"", {}},
        {1008, L"ComboBox", L"", {}}, {-1, L"Static", L"外観/全体", {}}, {1009, L"msctls_trackbar32", L"x", {}},
    }};
    // clang-format on
    WriteDialogText(Location(), content);
    EXPECT_EQ(Utf16Bytes(L"設定\r\n"
                         L"1001\tStatic\t名前:\\ta\\r\\nb\r\n"
                         L"1002\tButton\t&OK\r\n"
                         L"1003\tComboBoxStart\r\n"
                         L"1003\tComboBox\tone\ttab\r\n"
                         L"1003\tComboBox\ttwo\\n\r\n"
                         L"1008\tComboBoxStart\r\n"
                         L"-1\tStatic\t外観/全体\r\n"
                         L"1009\tmsctls_trackbar32\tx\r\n",
                         true),
              WrittenBytes(fake));

    WriteDialogText(Location(), {});
    EXPECT_EQ(Utf16Bytes(L"\r\n", true), WrittenBytes(fake))
        << "an empty title still has its line, and an existing file is replaced";
}

// The first opening writes the file, later ones read it; a file that cannot be written is not told.
TEST(DialogText, LanguageDecidesWhetherFilesAreUsed) {
    struct Case {
        const char* label;
        const wchar_t* nls;                      // null: no value
        std::optional<int32_t> langOut;          // none: no value
        std::wstring file;                       // empty: no file is read or written
        void (*spoil)(FakePlatform&) = nullptr;  // makes the file impossible to write
    };
    const std::wstring japanese = L"C:\\Qor\\Tools\\Option\\.ja-JP\\Option\\159.txt";
    // clang-format off
    const Case cases[] = {
        {"nothing set: the templates' language", nullptr, std::nullopt, L""},
        {"any nonzero LangOut", nullptr, -3, japanese},
        {"another language", L".en-US", std::nullopt, kTextFile},
        {"the tag is compared exactly", L".ja-jp", 0, L"C:\\Qor\\Tools\\Option\\.ja-jp\\Option\\159.txt"},
        {"a directory where the file goes", L".en-US", std::nullopt, kTextFile,
         [](FakePlatform& f) { f.files().AddDirectory(kTextFile); }},
        {"an empty read-only file", L".en-US", std::nullopt, kTextFile, [](FakePlatform& f) {
             f.files().AddFile(kTextFile, std::vector<uint8_t>{});
             f.files().SetAttributes(kTextFile, platform::kAttributeReadOnly); }},
        {"a file where the directory goes", L".en-US", std::nullopt, kTextFile,
         [](FakePlatform& f) { f.files().AddFile(L"C:\\Qor\\Tools\\Option\\.en-US", std::vector<uint8_t>{}); }},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        FakePlatform fake;
        if (c.nls) DirectWriteString(kDirectSettingsPath, L"NLS", c.nls);
        if (c.langOut) DirectWriteInt(kDirectSettingsPath, L"LangOut", *c.langOut);
        if (c.spoil) c.spoil(fake);
        DialogLanguage language;
        RecordingDialog first, second;
        LocaliseDialogText(language, kDialogId, first);
        LocaliseDialogText(language, kDialogId, second);
        EXPECT_TRUE(first.applied.empty());
        EXPECT_TRUE(fake.prompts().shown().empty());
        if (c.file.empty()) {
            EXPECT_EQ(0, first.contentReads + second.contentReads);
            EXPECT_TRUE(second.applied.empty());
            EXPECT_EQ(platform::kInvalidAttributes, fake.files().GetAttributes(L"C:\\Qor\\Tools\\Option\\.ja-JP"));
        } else if (c.spoil) {
            EXPECT_TRUE(second.applied.empty());
            EXPECT_EQ("", fake.files().FileText(kTextFile));
        } else {
            EXPECT_EQ(1, first.contentReads) << "the first opening writes";
            EXPECT_NE(platform::kInvalidAttributes, fake.files().GetAttributes(c.file));
            EXPECT_EQ(0, second.contentReads) << "the next one reads";
            EXPECT_EQ((Operations{Title(L"設定"), Text(1001, L"名前")}), second.applied);
        }
    }
}

}  // namespace
