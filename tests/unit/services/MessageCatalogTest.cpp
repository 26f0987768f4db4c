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

}  // namespace
