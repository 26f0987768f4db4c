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

// A dialog that shows fixed content and records what the file does to it, in the same terms.
class RecordingDialog : public LocalisableDialog {
public:
    void SetTitle(const std::wstring& text) override { applied.push_back({Kind::SetTitle, 0, text}); }
    void ResetCombo(int32_t id) override { applied.push_back({Kind::ResetCombo, id, L""}); }
    void AddComboEntry(int32_t id, const std::wstring& text) override {
        applied.push_back({Kind::AddComboEntry, id, text});
    }
    void SetControlText(int32_t id, const std::wstring& text) override {
        applied.push_back({Kind::SetControlText, id, text});
    }
    DialogContent Content() override {
        ++contentReads;
        return content;
    }

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
    struct Case {
        const char* label;
        std::wstring text;
        Operations expected;
    };
    const Case cases[] = {
        {"title and controls",
         L"Settings\r\n1001\tStatic\tName\r\n1002\tButton\t&Browse...\r\n",
         {{Kind::SetTitle, 0, L"Settings"},
          {Kind::SetControlText, 1001, L"Name"},
          {Kind::SetControlText, 1002, L"&Browse..."}}},
        {"an empty title line keeps the title, and a later single field is no title",
         L"\r\nSettings\r\n1001\tStatic\tName",
         {{Kind::SetControlText, 1001, L"Name"}}},
        {"a blank title line counts as the first line", L" \t \r\nSettings", {}},
        {"two fields first are a control line", L"1003\tComboBoxStart\r\nSettings", {{Kind::ResetCombo, 1003, L""}}},
        {"comments come before the title and anywhere else",
         L"// translated by hand\r\nSettings\r\n  // 1001\tStatic\tName\r\n",
         {{Kind::SetTitle, 0, L"Settings"}}},
        {"EOF ends the file, blanks around it too",
         L"Settings\r\n  EOF \r\n1001\tStatic\tName",
         {{Kind::SetTitle, 0, L"Settings"}}},
        {"id -1 names no control",
         L"T\r\n-1\tStatic\tx\r\n-1\tComboBoxStart\r\n-1\tComboBox\ty",
         {{Kind::SetTitle, 0, L"T"}}},
        {"ids as _wtoi reads them",
         L"T\r\n12abc\tStatic\tx\r\n0x10\tStatic\ty\r\n+7\tStatic\tz",
         {{Kind::SetTitle, 0, L"T"},
          {Kind::SetControlText, 12, L"x"},
          {Kind::SetControlText, 0, L"y"},
          {Kind::SetControlText, 7, L"z"}}},
        {"four fields and two fields other than a combo start are ignored",
         L"T\r\n1001\tStatic\tx\ty\r\n1001\tStatic\r\n1001\tComboboxStart",
         {{Kind::SetTitle, 0, L"T"}}},
        {"an empty text trims away to two fields", L"T\r\n1001\tStatic\t  ", {{Kind::SetTitle, 0, L"T"}}},
        {"an empty class is kept, an empty id is trimmed away",
         L"T\r\n1001\t\tx\r\n\tStatic\ty",
         {{Kind::SetTitle, 0, L"T"}, {Kind::SetControlText, 1001, L"x"}}},
        {"escapes turn back in control text only",
         L"T\r\n1001\tStatic\ta\\tb\\nc\\rd\\\\n\r\n1003\tComboBox\ta\\tb",
         {{Kind::SetTitle, 0, L"T"},
          {Kind::SetControlText, 1001, L"a\tb\nc\rd\\\n"},
          {Kind::AddComboEntry, 1003, L"a\\tb"}}},
        {"combo reset and fill in file order; the class word is matched exactly",
         L"T\r\n1003\tComboBoxStart\r\n1003\tComboBox\tone\r\n1003\tComboBox\ttwo\r\n1003\tcombobox\tthree",
         {{Kind::SetTitle, 0, L"T"},
          {Kind::ResetCombo, 1003, L""},
          {Kind::AddComboEntry, 1003, L"one"},
          {Kind::AddComboEntry, 1003, L"two"},
          {Kind::SetControlText, 1003, L"three"}}},
        {"byte order marks anywhere are removed, blanks trimmed",
         L"\uFEFF  Set\uFEFFtings \r\n  1001\tStatic\t Name  ",
         {{Kind::SetTitle, 0, L"Settings"}, {Kind::SetControlText, 1001, L" Name"}}},
        {"a line over 32,767 characters ends the reading",
         L"T\r\n1001\tStatic\t" + std::wstring(32767, L'x') + L"\r\n1002\tStatic\ty",
         {{Kind::SetTitle, 0, L"T"}}},
        {"a last line of exactly 32,767 characters is read",
         L"T\r\n1001\tStatic\t" + std::wstring(32767 - 12, L'x'),
         {{Kind::SetTitle, 0, L"T"}, {Kind::SetControlText, 1001, std::wstring(32767 - 12, L'x')}}},
    };
    for (const Case& c : cases) {
        FakePlatform fake;
        EXPECT_EQ(c.expected, Read(fake, c.text)) << c.label;
    }
}

TEST(DialogText, ImportFailsOnlyForAMissingOrEmptyFile) {
    FakePlatform fake;
    Operations operations;
    EXPECT_FALSE(ReadDialogText(kTextFile, operations));
    fake.files().AddFile(kTextFile, std::vector<uint8_t>{});
    EXPECT_FALSE(ReadDialogText(kTextFile, operations));
    fake.files().AddFile(kTextFile, Utf16Bytes(L"", true));
    EXPECT_TRUE(ReadDialogText(kTextFile, operations)) << "a byte order mark alone is a file read";
    EXPECT_TRUE(operations.empty());
}

TEST(DialogText, ExportWritesTheFileByteForByte) {
    FakePlatform fake;
    DialogContent content{L"設定",
                          {
                              {1001, L"Static", L"名前:\ta\r\nb", {}},
                              {1002, L"Button", L"&OK", {}},
                              {1003, L"ComboBox", L"shown", {L"one\ttab", L"two\\n"}},
                              {1004, L"Edit", L"typed", {}},
                              {1005, L"SysListView32", L"list", {}},
                              {1006, L"SysTabControl32", L"tabs", {}},
                              {1007, L"Static", L"", {}},
                              {1008, L"ComboBox", L"", {}},
                              {-1, L"Static", L"外観/全体", {}},
                              {1009, L"msctls_trackbar32", L"x", {}},
                          }};
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

TEST(DialogText, FileNameFromProgramTagAndId) {
    struct Case {
        std::wstring program;
        std::wstring tag;
        int32_t id;
        std::wstring directory;
        std::wstring path;
    };
    const Case cases[] = {
        {L"C:\\x\\Option.exe", L".en-US", 159, L"C:\\x\\.en-US\\Option", L"C:\\x\\.en-US\\Option\\159.txt"},
        {L"\\\\server\\share\\Qor\\Option.exe", L".ja-JP", 3001, L"\\\\server\\share\\Qor\\.ja-JP\\Option",
         L"\\\\server\\share\\Qor\\.ja-JP\\Option\\3001.txt"},
        {L"D:\\Tools\\Option.v2.exe", L"", -5, L"D:\\Tools\\\\Option.v2", L"D:\\Tools\\\\Option.v2\\-5.txt"},
        {L"Option", L"en", 1, L"en\\Option", L"en\\Option\\1.txt"},
    };
    for (const Case& c : cases) {
        DialogTextLocation location = LocateDialogText(c.program, c.tag, c.id);
        EXPECT_EQ(c.directory, location.directory) << c.program;
        EXPECT_EQ(c.path, location.path) << c.program;
    }
}

TEST(DialogText, LanguageDecidesWhetherFilesAreUsed) {
    struct Case {
        const char* label;
        const wchar_t* nls;              // null: no value
        std::optional<int32_t> langOut;  // none: no value
        std::wstring file;               // empty: no file is read or written
    };
    const Case cases[] = {
        {"nothing set: the templates' language", nullptr, std::nullopt, L""},
        {".ja-JP without LangOut", L".ja-JP", 0, L""},
        {".ja-JP with LangOut", L".ja-JP", 1, L"C:\\Qor\\Tools\\Option\\.ja-JP\\Option\\159.txt"},
        {"any nonzero LangOut", nullptr, -3, L"C:\\Qor\\Tools\\Option\\.ja-JP\\Option\\159.txt"},
        {"another language", L".en-US", std::nullopt, kTextFile},
        {"the tag is compared exactly", L".ja-jp", 0, L"C:\\Qor\\Tools\\Option\\.ja-jp\\Option\\159.txt"},
    };
    for (const Case& c : cases) {
        FakePlatform fake;
        if (c.nls) DirectWriteString(kDirectSettingsPath, L"NLS", c.nls);
        if (c.langOut) DirectWriteInt(kDirectSettingsPath, L"LangOut", *c.langOut);
        DialogLanguage language;
        RecordingDialog first;
        LocaliseDialogText(language, kDialogId, first);
        RecordingDialog second;
        LocaliseDialogText(language, kDialogId, second);
        if (c.file.empty()) {
            EXPECT_EQ(0, first.contentReads + second.contentReads) << c.label;
            EXPECT_TRUE(first.applied.empty() && second.applied.empty()) << c.label;
            EXPECT_EQ(platform::kInvalidAttributes, fake.files().GetAttributes(L"C:\\Qor\\Tools\\Option\\.ja-JP"))
                << c.label;
            continue;
        }
        EXPECT_EQ(1, first.contentReads) << c.label << ": the first opening writes";
        EXPECT_TRUE(first.applied.empty()) << c.label;
        EXPECT_NE(platform::kInvalidAttributes, fake.files().GetAttributes(c.file)) << c.label;
        EXPECT_EQ(0, second.contentReads) << c.label << ": the next one reads";
        EXPECT_EQ((Operations{{Kind::SetTitle, 0, L"設定"}, {Kind::SetControlText, 1001, L"名前"}}), second.applied)
            << c.label;
    }
}

TEST(DialogText, LanguageIsReadOnceUnlessTheTagWasEmpty) {
    FakePlatform fake;
    DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
    DialogLanguage language;
    EXPECT_TRUE(language.UsesTextFiles());
    DirectWriteString(kDirectSettingsPath, L"NLS", L".ja-JP");
    EXPECT_TRUE(language.UsesTextFiles());
    EXPECT_EQ(L".en-US", language.tag());

    DialogLanguage unnamed;
    DirectWriteString(kDirectSettingsPath, L"NLS", L"");
    EXPECT_TRUE(unnamed.UsesTextFiles());
    DirectWriteString(kDirectSettingsPath, L"NLS", L".ja-JP");
    EXPECT_FALSE(unnamed.UsesTextFiles()) << "an empty tag is no cached tag";
}

TEST(DialogText, AFileThatCannotBeWrittenChangesNothing) {
    struct Case {
        const char* label;
        void (*arrange)(FakePlatform&);
    };
    const Case cases[] = {
        {"a directory where the file goes", [](FakePlatform& f) { f.files().AddDirectory(kTextFile); }},
        {"an empty read-only file",
         [](FakePlatform& f) {
             f.files().AddFile(kTextFile, std::vector<uint8_t>{});
             f.files().SetAttributes(kTextFile, platform::kAttributeReadOnly);
         }},
        {"a file where the directory goes",
         [](FakePlatform& f) { f.files().AddFile(L"C:\\Qor\\Tools\\Option\\.en-US", std::vector<uint8_t>{}); }},
    };
    for (const Case& c : cases) {
        FakePlatform fake;
        DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
        c.arrange(fake);
        DialogLanguage language;
        RecordingDialog dialog;
        LocaliseDialogText(language, kDialogId, dialog);
        EXPECT_TRUE(dialog.applied.empty()) << c.label;
        EXPECT_EQ("", fake.files().FileText(kTextFile)) << c.label;
        EXPECT_TRUE(fake.prompts().shown().empty()) << c.label;
    }
}

}  // namespace
