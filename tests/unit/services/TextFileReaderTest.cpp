#include <gtest/gtest.h>

#include "unit/Utf16.h"
#include "platform/fake/FakePlatform.h"
#include "services/TextFileReader.h"

namespace {

using platform::fake::FakePlatform;

TEST(TextFileReader, OpenFailsForMissingAndEmptyFilesReachesLongPathsAndShutsWritersOut) {
    FakePlatform fake;
    fake.files().AddFile(L"C:\\empty.txt", std::vector<uint8_t>{});
    const std::wstring directory = L"C:\\" + std::wstring(250, L'd'), deep = directory + L"\\file.txt";
    fake.files().AddDirectory(directory);
    fake.files().AddFile(deep, Utf16Bytes(L"deep"));
    TextFileReader reader;
    EXPECT_FALSE(reader.Open(L"C:\\missing.txt") || reader.Open(L"C:\\empty.txt"));
    ASSERT_TRUE(reader.Open(deep));
    EXPECT_EQ(L"deep", reader.WholeText());
    EXPECT_EQ(nullptr, fake.files().Open(deep, platform::FileAccess::Write, false));
    EXPECT_NE(nullptr, fake.files().Open(deep, platform::FileAccess::Read, false));
    reader.Close();
    EXPECT_NE(nullptr, fake.files().Open(deep, platform::FileAccess::Append, false));
}

}  // namespace
