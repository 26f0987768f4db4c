// Path routines that ask the system.
#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"
#include "services/FileTests.h"
#include "services/LongPath.h"
#include "services/PathHelpers.h"

namespace {

using platform::fake::FakePlatform;

TEST(PathSystem, FullPathOnlyWhenTheResultFitsTheArgument) {
    FakePlatform fake;
    fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
    fake.files().ChangeDirectory(L"C:\\Qor");
    // clang-format off
    struct Case { const wchar_t* path; const wchar_t* expected; };
    const Case cases[] = {
        {L"C:\\Qor\\command\\Option\\..\\..\\Lang\\Msg.ja-JP.txt", L"C:\\Qor\\Lang\\Msg.ja-JP.txt"},
        {L"C:\\Qor\\command\\Option\\..\\..\\", L"C:\\Qor\\"}, {L"C:/Qor/./x", L"C:\\Qor\\x"},
        {L"relative.txt", L"relative.txt"}, {L"", L""},
    };
    // clang-format on
    for (const auto& c : cases) EXPECT_EQ(c.expected, FullPath(c.path)) << testing::PrintToString(std::wstring(c.path));
}

TEST(PathSystem, MakeDirectoryCreatesParentsAndKeepsRoots) {
    FakePlatform fake;
    EXPECT_EQ(0, MakeDirectory(L"C:\\a\\b\\c\\"));
    EXPECT_NE(platform::kInvalidAttributes, fake.files().GetAttributes(L"C:\\a\\b\\c"));
    EXPECT_TRUE(MakeDirectory(L"C:\\a\\b\\c") != 0 && MakeDirectory(L"C:\\") != 0) << "already there";
}

// The rules of "%NAME%" are compared with the system's on Windows; the length it stops at is not.
TEST(PathSystem, ExpandEnvironmentStopsAtTheSystemsLimit) {
    FakePlatform fake;
    fake.environment().SetVariable(L"BIG", std::wstring(20000, L'x'));
    EXPECT_EQ(std::wstring(16383, L'x'), ExpandEnvironment(L"%BIG%"));
}

TEST(PathSystem, FileExistsSearchesWithoutTheTrailingSeparator) {
    FakePlatform fake;
    fake.files().AddDirectory(L"C:\\dir");
    fake.files().AddFile(L"C:\\dir\\f.txt", std::string_view("x"));
    EXPECT_EQ(
        (std::vector<bool>{true, true, false}),
        (std::vector<bool>{FileExists(L"C:\\dir\\"), FileExists(L"C:\\dir\\f.txt"), FileExists(L"C:\\dir\\g.txt")}));
    EXPECT_EQ(platform::FindStyle::BasicLargeFetch, fake.files().lastFindStyle());
    for (int oldShell : {501, 600}) {
        fake.files().SetShellVersion(oldShell);
        EXPECT_TRUE(FileExists(L"C:\\dir\\f.txt"));
        EXPECT_EQ(platform::FindStyle::Plain, fake.files().lastFindStyle()) << oldShell;
    }
}

TEST(PathSystem, NormaliseLongNameDropsPrefixesAndLengthensShortNames) {
    FakePlatform fake;
    fake.files().AddDirectory(L"C:\\Program Files\\Long Folder Name");
    fake.files().SetShortName(L"C:\\Program Files", L"PROGRA~1");
    fake.files().SetShortName(L"C:\\Program Files\\Long Folder Name", L"LONGFO~1");
    // clang-format off
    struct Case { const wchar_t* path; const wchar_t* expected; };
    const Case cases[] = {
        {L"\\\\?\\C:\\x", L"C:\\x"}, {L"\\\\?\\UNC\\srv\\share", L"srv\\share"},
        {L"\\??\\UNC\\srv\\share", L"srv\\share"}, {L"C:\\PROGRA~1\\LONGFO~1", L"C:\\Program Files\\Long Folder Name"},
        {L"\\\\?\\C:\\PROGRA~1", L"C:\\Program Files"}, {L"C:\\PROGRA~1\\missing", L"C:\\PROGRA~1\\missing"},
        {L"C:\\abcdefgh~1", L"C:\\abcdefgh~1"}, {L"C:\\a~b", L"C:\\a~b"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, NormaliseLongName(c.path)) << testing::PrintToString(std::wstring(c.path));
    }
}

}  // namespace
