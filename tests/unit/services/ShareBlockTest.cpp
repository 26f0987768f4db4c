#include "services/ShareBlock.h"

#include <gtest/gtest.h>

#include "app/Startup.h"
#include "platform/fake/FakePlatform.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;
using Strings = std::vector<std::wstring>;

// "|" stands for a zero unit, so that a block as the reader leaves it can be written down.
std::vector<uint16_t> Units(std::wstring_view text, size_t count = 0) {
    std::vector<uint16_t> units;
    for (wchar_t c : text) units.push_back(c == L'|' ? 0 : static_cast<uint16_t>(c));
    units.resize(std::max(count, units.size()), 0);
    return units;
}

TEST(ShareBlock, SplitsTabEndedFieldsAndOverwritesEachTabItPasses) {
    // The split leaves the inspection text to the reader.
    // clang-format off
    struct Case { const char* what; std::wstring text; size_t limit; ShareBlock expected; std::wstring after; };
    const Case cases[] = {
        {"c1 0 and c2 2 put fields 4 and 5 in the second list", L"0\t2\tC:\\w\topt\ta\tb\t", 100,
         {L"C:\\w", L"opt", {}, {L"a", L"b"}, L""}, L"0|2|C:\\w|opt|a|b|"},
        {"both lists, later fields ignored", L"1\t1\tC:\\w\t\ta\tb\tc\t", 100, {L"C:\\w", L"", {L"a"}, {L"b"}, L""},
         L"1|1|C:\\w||a|b|c|"},
        {"no final tab loses the last field", L"2\t0\tC:\\w\to\tx\ty", 100, {L"C:\\w", L"o", {L"x"}, {}, L""},
         L"2|0|C:\\w|o|x|y"},
        {"an empty block", L"", 100, {}, L""},
        {"counts bigger than the fields", L"5\t7\td\to\ta\tb\t", 100, {L"d", L"o", {L"a", L"b"}, {}, L""},
         L"5|7|d|o|a|b|"},
        {"a negative first count moves the second list's start", L"-1\t3\td\to\ta\tb\t", 100,
         {L"d", L"o", {}, {L"a", L"b"}, L""}, L"-1|3|d|o|a|b|"},
        {"counts are read as _wtoi reads them", L" 1x\t+1\td\to\ta\tb\t", 100, {L"d", L"o", {L"a"}, {L"b"}, L""},
         L" 1x|+1|d|o|a|b|"},
        {"a zero ends the text", L"1\t0\td\to|a\t", 100, {L"d", L"", {}, {}, L""}, L"1|0|d|o|a\t"},
        {"the limit ends the walk", L"1\t0\td\to\tab\tc\t", 10, {L"d", L"o", {}, {}, L""}, L"1|0|d|o|ab\tc\t"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::vector<uint16_t> units = Units(c.text, 24);
        EXPECT_EQ(c.expected, SplitShareBlock(units, c.limit));
        EXPECT_EQ(Units(c.after, 24), units);
    }
}

TEST(ShareBlock, InspectionTextEndsEveryEntryWithATab) {
    ShareBlock block{L"C:\\w", L"-x", {L"a", L"b"}, {L"c"}, L""};
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:C:\\w\nOption:-x\na\tb\t\nc\t", ShareBlockInspection(block));
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:\nOption:\n\n", ShareBlockInspection({}));
    EXPECT_EQ(L"ShareMem_-1_20", ShareBlockName(-1, 20));
}

class ShareBlockReadTest : public testing::Test {
protected:
    FakePlatform fake;
};

TEST_F(ShareBlockReadTest, ReadsTheHostsBlockWhileHoldingItsMutex) {
    fake.sharedMemory().AddBlock(L"ShareMem_7_8", Units(L"1\t0\tC:\\w\t\ta\t", 32));
    ShareBlock block = ReadShareBlock(7, 8, 64);
    EXPECT_EQ((Strings{L"a"}), block.firstList);
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:C:\\w\nOption:\na\t\n", block.inspection);
    EXPECT_EQ(Units(L"1|0|C:\\w||a|", 32), *fake.sharedMemory().Block(L"ShareMem_7_8"));
    EXPECT_EQ((Strings{L"map ShareMem_7_8 64", L"mutex ShareMem_7_8_Mutex", L"lock ShareMem_7_8_Mutex",
                       L"unlock ShareMem_7_8_Mutex", L"unmap ShareMem_7_8", L"close ShareMem_7_8_Mutex"}),
              fake.sharedMemory().events());
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(ShareBlockReadTest, SizeInBytesIsTakenAsACountOfCharacters) {
    // 20 bytes hold 10 characters, yet the walk goes on to the 20th.
    fake.sharedMemory().AddBlock(L"ShareMem_1_2", Units(L"2\t0\tC:\\dir\to\tx\tyyyyy\t", 64));
    EXPECT_EQ((Strings{L"x"}), ReadShareBlock(1, 2, 20).firstList);
}

TEST_F(ShareBlockReadTest, NoHostBlockGivesAFreshEmptyOne) {
    ShareBlock block = ReadShareBlock(3, 4, 100);
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:\nOption:\n\n", block.inspection);
    ASSERT_NE(nullptr, fake.sharedMemory().Block(L"ShareMem_3_4"));
    EXPECT_EQ(Units(L"", 50), *fake.sharedMemory().Block(L"ShareMem_3_4"));
    EXPECT_TRUE(fake.prompts().shown().empty());
}

TEST_F(ShareBlockReadTest, AMappingThatFailsIsToldAndSkipped) {
    fake.sharedMemory().FailMapping(87);
    fake.processes().SetErrorText(87, L"The parameter is incorrect.\r\n");
    EXPECT_EQ(ShareBlock{}, ReadShareBlock(3, 4, 0));
    EXPECT_EQ((std::vector<ShownMessage>{{L"The parameter is incorrect.\r\n", 0}}), fake.prompts().shown());
    EXPECT_EQ((Strings{L"map ShareMem_3_4 0"}), fake.sharedMemory().events());
}

// Start-up reads the block only when the switch string says "Share", written just so.
TEST_F(ShareBlockReadTest, StartupReadsTheBlockTheSwitchStringNames) {
    class NoTargets : public StartupTargets {
        void OpenOptionDialog() override {}
        void OpenEditor(int, const std::wstring&) override {}
        void WriteKeyLists() override {}
        void RunEditorScript(const std::wstring&) override {}
    } targets;
    fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
    fake.sharedMemory().AddBlock(L"ShareMem_5_6", Units(L"0\t1\tC:\\w\to\tb\t", 32));
    struct Case {
        std::wstring switches;
        std::wstring currentDir;
        Strings secondList;
    };
    const Case cases[] = {
        {L"1:0:5:6:64:0:0:0:share:0", L"", {}},
        {L"1:0:5:6:64:0:0:0:Share:0:0", L"", {}},
        {L"1:0:5:6:64:0:0:0:Share:0", L"C:\\w", {L"b"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.switches));
        fake.environment().SetVariable(L"QOR_ExCommand", c.switches);
        AppServices app(96);
        RunStartup(app, targets, {L"/T", L"x"});
        EXPECT_EQ(c.currentDir, app.share.currentDir);
        EXPECT_EQ(c.secondList, app.share.secondList);
    }
}

}  // namespace
