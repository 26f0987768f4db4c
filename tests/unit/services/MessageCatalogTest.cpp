#include <gtest/gtest.h>

#include "unit/Utf16.h"
#include "platform/fake/FakePlatform.h"
#include "services/MessageCatalog.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::ShownMessage;

constexpr const wchar_t* kPath = L"C:\\Qor\\Lang\\Msg.ja-JP.txt";

TEST(MessageCatalog, AMissingFileIsToldAtEveryLookup) {
    FakePlatform fake;
    MessageCatalog messages;
    messages.SetPath(kPath);
    std::vector<std::wstring> texts = {messages.Get(62538), messages.Get(62538)};
    fake.files().AddFile(kPath, Utf16Bytes(L"62538\tno library"));  // once there, the next lookup loads it
    texts.push_back(messages.Get(62538));
    EXPECT_EQ((std::vector<std::wstring>{MessageCatalog::kMissingText, MessageCatalog::kMissingText, L"no library"}),
              texts);
    const ShownMessage told = {std::wstring(L"Cannot open message file.\n") + kPath, 0};
    EXPECT_EQ((std::vector<ShownMessage>{told, told}), fake.prompts().shown());
}

TEST(MessageCatalog, ConfirmationsFollowTheirBit) {
    FakePlatform fake;
    fake.files().AddFile(kPath, Utf16Bytes(L"63300\tclosing\n63301\tcaption 1\n63302\tquestion 1\n"
                                           L"63329\tcaption 15\n63330\tquestion 15\n"));
    MessageCatalog messages;
    messages.SetPath(kPath);
    // clang-format off
    struct Case { int32_t setting; uint16_t id; int expected; };
    const Case cases[] = {
        {-1, 63301, platform::kAnswerYes}, {0, 63301, -1}, {1, 63301, platform::kAnswerYes}, {2, 63301, -1},
        {0x4000, 63329, platform::kAnswerYes}, {0x3FFF, 63329, -1},
        {0x38FB, 63303, platform::kAnswerYes}, {0x38FB, 63305, -1},
    };
    // clang-format on
    for (const auto& c : cases) {
        fake.prompts().Clear();
        fake.prompts().Answer(platform::kAnswerYes);
        EXPECT_EQ(c.expected, messages.Confirm(c.setting, c.id)) << c.setting << " " << c.id;
    }
    fake.prompts().Clear();
    messages.Confirm(-1, 63329);
    EXPECT_EQ((std::vector<ShownMessage>{{L"question 15\n\nclosing", platform::kStyleYesNo, L"caption 15"}}),
              fake.prompts().shown());
}

TEST(MessageCatalog, LoadingRules) {
    FakePlatform fake;
    fake.files().AddFile(kPath, Utf16Bytes(L"// comment\t1\r\n"
                                           L"100\tplain\r\n"
                                           L"  101\t  padded  \r\n"
                                           L"102\tline\\nbreak\r\n"
                                           L"103\t\\nedges\\n\r\n"
                                           L"104\t\r\n"
                                           L"105\ta\tb\r\n"
                                           L"100\tsecond wins not\r\n"
                                           L"70000\twrapped\r\n"
                                           L"x\tnot a number\r\n"
                                           L"106\tin\uFEFFner\n"
                                           L"107\tlf only\n"
                                           L" EOF \r\n"
                                           L"108\tafter the end\r\n",
                                           true));
    MessageCatalog messages;
    messages.SetPath(kPath);
    // clang-format off
    struct Case { uint16_t id; std::wstring text; };
    const Case cases[] = {
        {100, L"plain"}, {101, L"  padded"}, {102, L"line\nbreak"}, {103, L"\nedges"},
        {104, MessageCatalog::kMissingText}, {105, MessageCatalog::kMissingText}, {4464, L"wrapped"},
        {0, L"not a number"}, {106, L"inner"}, {107, L"lf only"}, {108, MessageCatalog::kMissingText},
        {1, MessageCatalog::kMissingText},
    };
    // clang-format on
    for (const auto& c : cases) EXPECT_EQ(c.text, messages.Get(c.id)) << c.id;
    EXPECT_TRUE(fake.prompts().shown().empty());
}

}  // namespace
