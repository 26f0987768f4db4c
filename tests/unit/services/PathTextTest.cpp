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

TEST(PathText, LongPathFormFrom260Characters) {
    auto tail = [](size_t total, const std::wstring& head) { return head + std::wstring(total - head.size(), L'a'); };
    struct Case {
        std::wstring path, expected;
    };
    const std::wstring drive259 = tail(259, L"C:\\");
    const std::wstring drive260 = tail(260, L"C:\\");
    const std::wstring unc260 = tail(260, L"\\\\srv\\share\\");
    const std::wstring prefixed = tail(270, L"\\\\?\\C:\\");
    const std::wstring relative = tail(300, L"..\\");
    const Case cases[] = {
        {L"", L""},
        {drive259, drive259},
        {drive260, L"\\\\?\\" + drive260},
        {tail(260, L"d:\\"), L"\\\\?\\" + tail(260, L"d:\\")},
        {unc260, L"\\\\?\\UNC" + unc260.substr(1)},
        {prefixed, prefixed},
        {relative, relative},
        {tail(260, L"\u00C4:\\"), tail(260, L"\u00C4:\\")},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, ToLongPathForm(c.path)) << c.path.size() << " units: " << c.path.substr(0, 12).size();
    }
}

}  // namespace
