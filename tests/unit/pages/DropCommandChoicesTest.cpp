#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/Utf16.h"
#include "definitions/CommandCatalog.h"
#include "pages/DropCommandChoices.h"
#include "platform/fake/FakePlatform.h"

namespace {

// The shell's two items, then the named commands of the last group of external commands only.
TEST(DropCommandChoices, OfferTheShellThenTheListedCommandsAndSelectTheStoredOne) {
    platform::fake::FakePlatform fake;
    fake.files().AddFile(L"C:\\User\\ExternalUserCommand.txt",
                         Utf16Bytes(L"42001\t\t-\tzip.exe\tPack\r\n"
                                    L"42600\t\t-\tmail.exe\tMail\r\n"
                                    L"41999\t\t-\tother.exe\tOutside\r\n"
                                    L"43001\t\t-\tother.exe\tBeyond\r\n",
                                    true));
    CommandCatalog commands;
    commands.LoadCommandLists(L"C:\\User\\");

    struct Case {
        DropKind kind;
        int32_t stored;
        int selected;
    };
    const Case cases[] = {
        {DropKind::Copy, 0, 0},     {DropKind::Copy, 1, 1}, {DropKind::Move, 42600, 3},
        {DropKind::Move, 42999, 1},  // a command that is gone: the second shell item
        {DropKind::Copy, -5, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stored);
        DropChoices choices = MakeDropChoices(c.kind, commands, c.stored);
        ASSERT_EQ(4u, choices.items.size());
        const wchar_t* verb = c.kind == DropKind::Copy ? L"コピー" : L"移動";
        EXPECT_EQ(std::wstring(L"内部コマンド:シェルのファイル") + verb + L"(バックグラウンド)", choices.items[0].text);
        EXPECT_EQ(std::wstring(L"内部コマンド:シェルのファイル") + verb + L"(同期モード)", choices.items[1].text);
        EXPECT_EQ(L"Pack", choices.items[2].text);
        EXPECT_EQ(L"Mail", choices.items[3].text);
        std::vector<int32_t> stored;
        for (const DropChoice& item : choices.items) stored.push_back(item.command);
        EXPECT_EQ((std::vector<int32_t>{0, 1, 42001, 42600}), stored);
        EXPECT_EQ(c.selected, choices.selected);
    }
}

}  // namespace
