#include <gtest/gtest.h>

#include "definitions/RunDefinition.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

const std::wstring kFile = L"C:\\Qor\\User\\Script\\Def.txt";

std::wstring Saved(platform::fake::FakePlatform& fake) {
    std::vector<uint8_t> bytes;
    EXPECT_TRUE(fake.files().ReadFile(kFile, bytes));
    return Utf16Text(bytes);
}

// Whatever form of the keys a file held, and whatever else, what the editor shows reads back the same.
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

}  // namespace
