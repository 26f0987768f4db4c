// Path routines, on the text alone and asking the system.
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
