#include <gtest/gtest.h>

#include "definitions/RunDefinition.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

const std::wstring kFile = L"C:\\Qor\\User\\Script\\Def.txt";

std::wstring Saved(platform::fake::FakePlatform& fake) {
    std::vector<uint8_t> bytes;
    EXPECT_TRUE(fake.files().ReadFile(kFile, bytes));
    std::wstring text;
    for (size_t at = 0; at + 1 < bytes.size(); at += 2) text += static_cast<wchar_t>(bytes[at] | (bytes[at + 1] << 8));
    return text;
}

// What the editor shows of a file, and what it writes back: always the writer's own keys, whatever the
// file held.
TEST(RunDefinitionTest, ReadsEveryFormItMeetsAndSavesTheFixedForm) {
    // clang-format off
    struct Case { const wchar_t* content; RunDefinition read; };
    const Case cases[] = {
        {L"\uFEFFRun=C:\\Tools\\x.exe\r\n", {L"", 0, 0, 0, L"", 0, L"C:\\Tools\\x.exe"}},
        {L"\t run \t=  a.exe /opt=1 /b=  \r\n", {L"", 0, 0, 0, L"", 0, L"a.exe /opt=1 /b="}},
        {L"RUN=a\r\nOPENMODE=3\r\nbootDIR=1\r\nCommandLineOption=\"?SelFile?\"\r\n",
         {L"\"?SelFile?\"", 3, 0, 0, L"1", 0, L"a"}},
        {L"// where it goes\r\nrun=a\r\nexec=b\r\nicon=x\r\n", {L"", 0, 0, 0, L"", 0, L"a"}},
        {L"MultiCommandMode=2\r\nShiftSilentMode= 1 \r\nBootMode=x\r\nOpenMode=7\r\n", {L"", 7, 0, 1, L"", 0, L""}},
        {L"run=a\r\nrun=b\r\nEOF\r\nrun=c\r\n", {L"", 0, 0, 0, L"", 0, L"b"}},
        {L"run\r\n=c\r\nR\uFEFFun=d\r\n", {L"", 0, 0, 0, L"", 0, L"d"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.content)));
        platform::fake::FakePlatform fake;
        fake.files().AddDirectory(L"C:\\Qor\\User\\Script");
        fake.files().AddFile(kFile, Utf16Bytes(c.content));
        RunDefinition read;
        ASSERT_TRUE(ReadRunDefinition(kFile, read));
        EXPECT_EQ(c.read, read);
        ASSERT_TRUE(WriteRunDefinition(kFile, read));
        RunDefinition again;
        ASSERT_TRUE(ReadRunDefinition(kFile, again));
        EXPECT_EQ(read, again);
    }
    platform::fake::FakePlatform fake;
    fake.files().AddDirectory(L"C:\\Qor\\User\\Script");
    ASSERT_TRUE(WriteRunDefinition(kFile, {L"?SelFile?", 3, 1, 0, L"1", 5, L"C:\\a=b.exe"}));
    EXPECT_EQ(
        L"\uFEFFCommandlineOption=?SelFile?\r\nOpenMode=3\r\nMultiCommandMode=1\r\nShiftSilentMode=0\r\n"
        L"BootDir=1\r\nBootMode=5\r\nRun=C:\\a=b.exe\r\n",
        Saved(fake));
}

// A filter holds for every command behind it; saving gives each row its own filter line.
TEST(RunDefinitionTest, ExtensionRowsTakeTheFilterAheadOfThem) {
    // clang-format off
    struct Case { const wchar_t* content; std::vector<ExRunRow> rows; const wchar_t* body; };
    const Case cases[] = {
        {L"Filter=txt,log\r\nExRun=a.exe\r\nexrun = b.exe|c.exe\r\n", {{L"txt,log", L"a.exe"}, {L"txt,log", L"b.exe|c.exe"}},
         L"Filter=txt,log\r\nExRun=a.exe\r\nFilter=txt,log\r\nExRun=b.exe|c.exe\r\n"},
        {L"exrun=x\r\nfilter=jpg\r\nrun=y\r\nEXRUN=\r\nEOF\r\nexrun=z\r\n", {{L"", L"x"}, {L"jpg", L""}},
         L"Filter=\r\nExRun=x\r\nFilter=jpg\r\nExRun=\r\n"},
        {L"// nothing but a comment\r\n", {}, L""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.content)));
        platform::fake::FakePlatform fake;
        fake.files().AddDirectory(L"C:\\Qor\\User\\Script");
        fake.files().AddFile(kFile, Utf16Bytes(c.content, true));
        std::vector<ExRunRow> rows{{L"old", L"row"}};
        ASSERT_TRUE(ReadExRunDefinition(kFile, rows));
        EXPECT_EQ(c.rows, rows);
        ASSERT_TRUE(WriteExRunDefinition(kFile, rows));
        EXPECT_EQ(std::wstring(L"\uFEFFCommandLineOption=?SelFile?\r\nMultiCommandMode=0\r\nShiftSilentMode=0\r\n"
                               L"BootDir=\r\nBootMode=0\r\nOpenMode=0\r\n") +
                      c.body,
                  Saved(fake));
    }
}

// A file that is not there leaves what the caller had, and one that cannot be written stays as it was.
TEST(RunDefinitionTest, UnreadableAndUnwritableFilesChangeNothing) {
    platform::fake::FakePlatform fake;
    RunDefinition definition{L"x", 1, 1, 1, L"d", 1, L"r"};
    std::vector<ExRunRow> rows{{L"a", L"b"}};
    EXPECT_FALSE(ReadRunDefinition(kFile, definition));
    EXPECT_FALSE(ReadExRunDefinition(kFile, rows));
    EXPECT_EQ((RunDefinition{L"x", 1, 1, 1, L"d", 1, L"r"}), definition);
    EXPECT_EQ((std::vector<ExRunRow>{{L"a", L"b"}}), rows);
    fake.files().AddDirectory(L"C:\\Qor\\User\\Script");
    fake.files().AddFile(kFile, Utf16Bytes(L"run=old\r\n", true));
    fake.files().FailWritesAfter(10);
    EXPECT_FALSE(WriteRunDefinition(kFile, definition));
    EXPECT_EQ(L"\uFEFFrun=old\r\n", Saved(fake));
}

}  // namespace
