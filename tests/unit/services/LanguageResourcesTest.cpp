#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"
#include "services/LanguageResources.h"
#include "unit/Utf16.h"

namespace {

using platform::Menu;
using platform::MenuItem;
using platform::fake::FakePlatform;
using platform::fake::LibraryContent;
using platform::fake::ShownMessage;

constexpr const wchar_t* kLibrary = L"C:\\Qor\\Lang\\Qor.ja-JP.dll";
constexpr const wchar_t* kMessages = L"C:\\Qor\\Lang\\Msg.ja-JP.txt";

const Menu kMainMenu = {
    {0, L"&File", false, true, {{35900, L"&Open", false, false, {}}, {0, L"", true, false, {}}}},
    {0, L"&Tools", false, true, {{35502, L"&Options...", false, false, {}}}},
};

// Strings and menus pass through from a loaded library; only a missing library is told, when a menu is asked for.
TEST(LanguageResources, StringsAndMenusPassThroughAndOnlyAMissingLibraryIsTold) {
    FakePlatform fake;
    fake.files().AddFile(kMessages, Utf16Bytes(L"62538\tno language library\r\n", true));
    MessageCatalog messages;
    messages.SetPath(kMessages);
    fake.system().AddLibrary(kLibrary, LibraryContent{{{35900, L"Open\nOpen the item"}, {50551, L"Ext %d\nTip"}},
                                                      {{130, kMainMenu}, {501, {}}}});
    auto library = fake.system().LoadDataLibrary(kLibrary);
    ASSERT_TRUE(library);
    const std::pair<uint32_t, std::wstring> strings[] = {
        {35900, L"Open\nOpen the item"}, {50551, L"Ext %d\nTip"}, {35901, L""}};
    for (const auto& [id, text] : strings) EXPECT_EQ(text, LoadLanguageString(library.get(), id)) << id;
    EXPECT_EQ(kMainMenu, LoadLanguageMenu(library.get(), 130, messages));
    EXPECT_EQ(Menu{}, LoadLanguageMenu(library.get(), 501, messages));
    EXPECT_EQ(std::nullopt, LoadLanguageMenu(library.get(), 502, messages)) << "absent menu";
    EXPECT_TRUE(fake.prompts().shown().empty());

    EXPECT_EQ(L"", LoadLanguageString(nullptr, 35900));
    EXPECT_EQ(std::nullopt, LoadLanguageMenu(nullptr, 130, messages));
    EXPECT_EQ((std::vector<ShownMessage>{{L"no language library", 0}}), fake.prompts().shown());
}

}  // namespace
