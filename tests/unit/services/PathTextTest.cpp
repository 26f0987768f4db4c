// Path routines that work on the text alone.
#include <gtest/gtest.h>

#include "services/LongPath.h"
#include "services/PathHelpers.h"

namespace {

TEST(PathText, DirectoryAndFileParts) {
    // clang-format off
    struct Case { const wchar_t* path; const wchar_t* directory; const wchar_t* file; } cases[] = {
        {L"C:\\a\\b.txt", L"C:\\a\\", L"b.txt"}, {L"C:\\a\\", L"C:\\a\\", L""}, {L"b.txt", L"b.txt", L"b.txt"},
        {L"a/b/c.txt", L"a/b/c.txt", L"a/b/c.txt"}, {L"", L"", L""}, {L"\\\\srv\\share", L"\\\\srv\\", L"share"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.directory, DirectoryPart(c.path)) << testing::PrintToString(std::wstring(c.path));
        EXPECT_EQ(c.file, FilePart(c.path)) << testing::PrintToString(std::wstring(c.path));
    }
}

TEST(PathText, AddSeparatorKeepsItsOddityForSlashes) {
    // clang-format off
    struct Case { const wchar_t* path; const wchar_t* expected; } cases[] = {
        {L"", L""}, {L"C:\\dir", L"C:\\dir\\"}, {L"C:\\dir\\", L"C:\\dir\\"}, {L"C:/dir", L"C:/dir\u008B"},
        {L"C:/dir\u008B", L"C:/dir\u008B"}, {L"C:/dir/", L"C:/dir/\u008B"}, {L"C:\\dir/x\\", L"C:\\dir/x\\\u008B"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, AddSeparator(c.path)) << testing::PrintToString(std::wstring(c.path));
    }
}

TEST(PathText, StripSeparatorPlainAndRootSafe) {
    // clang-format off
    struct Case { const wchar_t* path; const wchar_t* plain; const wchar_t* rootSafe; } cases[] = {
        {L"C:\\dir\\", L"C:\\dir", L"C:\\dir"}, {L"C:\\dir/", L"C:\\dir", L"C:\\dir"},
        {L"C:\\dir\\\\", L"C:\\dir\\", L"C:\\dir\\"}, {L"C:\\", L"C:", L"C:\\"}, {L"C:/", L"C:", L"C:/"},
        {L"C:x", L"C:x", L"C:x"}, {L"\\", L"", L""}, {L"", L"", L""}, {L"dir", L"dir", L"dir"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(c.plain, StripSeparator(std::wstring(c.path))) << testing::PrintToString(std::wstring(c.path));
        EXPECT_EQ(c.rootSafe, StripSeparatorRootSafe(c.path)) << testing::PrintToString(std::wstring(c.path));
    }
    EXPECT_EQ(L"", StripSeparator(static_cast<const wchar_t*>(nullptr)));
}

TEST(PathText, SplitPathGivesDriveDirectoryNameExtension) {
    // clang-format off
    struct Case { const wchar_t* path; PathParts parts; } cases[] = {
        {L"C:\\dir\\sub\\name.ext", {L"C:", L"\\dir\\sub\\", L"name", L".ext"}},
        {L"C:name.tar.gz", {L"C:", L"", L"name.tar", L".gz"}}, {L"dir/name", {L"", L"dir/", L"name", L""}},
        {L"\\\\srv\\share\\a.b", {L"", L"\\\\srv\\share\\", L"a", L".b"}},
        {L"C:\\dir.x\\name", {L"C:", L"\\dir.x\\", L"name", L""}}, {L".profile", {L"", L"", L"", L".profile"}},
        {L"", {L"", L"", L"", L""}},
    };
    // clang-format on
    for (const auto& c : cases) {
        const PathParts got = SplitPath(c.path);
        EXPECT_EQ((std::vector<std::wstring>{c.parts.drive, c.parts.directory, c.parts.name, c.parts.extension}),
                  (std::vector<std::wstring>{got.drive, got.directory, got.name, got.extension}))
            << testing::PrintToString(std::wstring(c.path));
    }
}

// From 260 units on, a path of a drive or a server gains the long-path prefix; others stay as they are.
TEST(PathText, LongPathFormFrom260Characters) {
    auto tail = [](size_t total, const std::wstring& head) { return head + std::wstring(total - head.size(), L'a'); };
    // clang-format off
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"", L""}, {tail(259, L"C:\\"), tail(259, L"C:\\")}, {tail(260, L"C:\\"), tail(264, L"\\\\?\\C:\\")},
        {tail(260, L"d:\\"), tail(264, L"\\\\?\\d:\\")}, {tail(260, L"\\\\srv\\share\\"), tail(266, L"\\\\?\\UNC\\srv\\share\\")},
        {tail(270, L"\\\\?\\C:\\"), tail(270, L"\\\\?\\C:\\")}, {tail(300, L"..\\"), tail(300, L"..\\")},
        {tail(260, L"\u00C4:\\"), tail(260, L"\u00C4:\\")},
    };
    // clang-format on
    for (const auto& [path, expected] : cases) EXPECT_EQ(expected, ToLongPathForm(path)) << path.substr(0, 12);
}

}  // namespace
