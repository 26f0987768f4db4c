#include <gtest/gtest.h>

#include "unit/Utf16.h"
#include "platform/fake/FakePlatform.h"
#include "services/TextFileReader.h"
#include "services/WideStream.h"

namespace {

using namespace std::string_literals;

struct Line {
    std::wstring text;
    uint32_t start;
    uint32_t next;
    int32_t number;
    bool operator==(const Line&) const = default;
};

void PrintTo(const Line& line, std::ostream* os) {
    *os << testing::PrintToString(line.text) << " @" << line.start << ".." << line.next << " #" << line.number;
}

// Reads every line with one reused buffer, as the script loops do.
std::vector<Line> ReadAll(TextFileReader& reader, uint32_t limit = 32767) {
    std::vector<wchar_t> buffer(limit + 1, 0);
    std::vector<Line> lines;
    while (reader.ReadLine(buffer.data(), limit) && lines.size() < 100) {
        lines.push_back({buffer.data(), reader.LineStartOffset, reader.NextLineOffset, reader.GetLineNumber()});
    }
    return lines;
}

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

TEST(TextFileReader, LinesOffsetsAndNumbers) {
    // clang-format off
    struct Case { const char* label; std::vector<uint8_t> bytes; std::vector<Line> lines; uint32_t limit = 32767; };
    const Case cases[] = {
        {"bom and crlf", Utf16Bytes(L"ab\r\nc\r\n", true), {{L"ab", 2, 10, 1}, {L"c", 10, 16, 2}, {L"", 16, 16, 3}}},
        {"lf and lone cr", Utf16Bytes(L"a\nb\rc"),
         {{L"a", 0, 4, 1}, {L"b", 4, 8, 2}, {L"c", 8, 10, 3}, {L"", 10, 10, 4}}},
        {"empty lines kept", Utf16Bytes(L"\r\n\r\nx"),
         {{L"", 0, 4, 1}, {L"", 4, 8, 2}, {L"x", 8, 10, 3}, {L"", 10, 10, 4}}},
        {"big-endian mark read as it stands", {0xFE, 0xFF, 0x00, 0x41}, {{L"\uFFFE\u4100", 0, 4, 1}, {L"", 4, 4, 2}}},
        {"odd last byte", {0x41, 0x00, 0x42}, {{L"AB", 0, 4, 1}, {L"", 4, 4, 2}}},
        {"bom only", {0xFF, 0xFE}, {}},
        {"a line at the limit ends the reading", Utf16Bytes(L"123\r\n1234\r\nafter"), {{L"123", 0, 10, 1}}, 4},
    };
    // clang-format on
    for (const auto& c : cases) {
        FakePlatform fake;
        fake.files().AddFile(L"C:\\t.txt", c.bytes);
        TextFileReader reader;
        ASSERT_TRUE(reader.Open(L"C:\\t.txt")) << c.label;
        EXPECT_EQ(c.lines, ReadAll(reader, c.limit)) << c.label;
    }
}

TEST(WideStream, KeepsLineEndsAndMarksAsTheRuntimeDoes) {
    FakePlatform fake;
    std::wstring text = L"\uFEFFfirst\r\nsecond\nthird\0x\r\n1234567last"s;
    fake.files().AddFile(L"C:\\s.txt", Utf16Bytes(text));
    WideStream stream;
    ASSERT_TRUE(stream.Open(L"C:\\s.txt"));
    std::vector<std::wstring> lines;
    std::wstring line;
    while (stream.ReadLine(line, 8)) lines.push_back(line);
    const std::vector<std::wstring> expected = {L"\uFEFFfirst\r", L"\n",      L"second\n", L"third",
                                                L"\r\n",          L"1234567", L"last"};
    EXPECT_EQ(expected, lines);
    EXPECT_FALSE(WideStream().Open(L"C:\\none.txt"));
}

}  // namespace
