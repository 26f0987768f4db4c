#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/Utf16.h"
#include "definitions/CommandCatalog.h"
#include "pages/DropCommandChoices.h"
#include "platform/fake/FakePlatform.h"

namespace {

// Whichever list names them, in the order of their numbers.
TEST(DropCommandChoices, OfferTheNamedCommandsOfTheLastExternalGroup) {
    platform::fake::FakePlatform fake;
    fake.files().AddFile(L"C:\\User\\ExternalUserCommand.txt", Utf16Bytes(L"42600\t\t-\tmail.exe\tMail\r\n"
                                                                          L"42001\t\t-\tzip.exe\tPack\r\n"
                                                                          L"41999\t\t-\tother.exe\tOutside\r\n"
                                                                          L"43001\t\t-\tother.exe\tBeyond\r\n",
                                                                          true));
    fake.files().AddFile(L"C:\\User\\ExternalDefCommand.txt", Utf16Bytes(L"43000\t\t-\tlast.exe\tLast\r\n", true));
    CommandCatalog commands;
    commands.LoadCommandLists(L"C:\\User\\");
    std::vector<std::pair<std::wstring, int32_t>> offered;
    for (const DropChoice& choice : DropCommands(commands)) offered.emplace_back(choice.text, choice.command);
    EXPECT_EQ((std::vector<std::pair<std::wstring, int32_t>>{{L"Pack", 42001}, {L"Mail", 42600}, {L"Last", 43000}}),
              offered);
    EXPECT_EQ((std::vector<int32_t>{0, 1, 1}),
              (std::vector<int32_t>{ShellDropCommand(0), ShellDropCommand(1), ShellDropCommand(2)}));
}

// The stored command's item; 0 is the first shell item, any value no item has the waiting one.
TEST(DropCommandChoices, SelectTheItemOfTheStoredValue) {
    const std::vector<int32_t> full = {0, 1, 42001, 42600};
    // clang-format off
    struct Case { std::vector<int32_t> items; int32_t stored; int selected; };
    const Case cases[] = {
        {full, 0, 0}, {full, 1, 1}, {full, 42600, 3}, {full, 42999, 1},  // a command that is gone
        {full, -5, 1}, {{0}, 42999, -1},  // a translation left only one shell item: nothing to fall back on
        {{}, 0, -1},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored);
        EXPECT_EQ(c.selected, SelectDropChoice(c.items, c.stored));
    }
}

}  // namespace
