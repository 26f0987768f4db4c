#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "definitions/CommandTree.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

using platform::MenuItem;
using platform::fake::FakePlatform;
using platform::fake::LibraryContent;

constexpr const wchar_t* kLibrary = L"C:\\Qor\\Lang\\Qor.ja-JP.dll";
constexpr const wchar_t* kBarMenus = L"C:\\Qor\\InitTemp\\Menu\\";

MenuItem Item(uint32_t id, std::wstring text) {
    return {id, std::move(text), false, false, {}};
}
MenuItem Popup(std::wstring text, std::vector<MenuItem> children, uint32_t id = 0) {
    return {id, std::move(text), false, true, std::move(children)};
}

class CommandTreeTest : public testing::Test {
protected:
    CommandTreeTest() {
        LibraryContent content;
        content.menus[130] = {
            Popup(L"ファイル(&F)",
                  {Item(32800, L"開く(&O)..."), Item(0, L""), Item(32801, L"閉じる(&C)"),
                   Item(32772, L"最近使ったファイル"), Popup(L"送る", {Item(32802, L"デスクトップ")}, 32775)}),
            Item(59392, L"ツールバー"),
        };
        content.menus[501] = {Popup(L"コマンド", {Item(32810, L"更新"), Popup(L"表示", {Item(32811, L"&詳細")})})};
        content.strings = {
            {32800, L"ファイルを開く\nTip"}, {32801, L"閉じる"},        {32810, L"更新する"}, {32811, L"詳細表示"},
            {50551, L"外部コマンド%d"},      {50560, L"バー1 - 操作%d"}};
        fake.system().AddLibrary(kLibrary, content);
        library = fake.system().LoadDataLibrary(kLibrary);
        fake.files().AddDirectory(kBarMenus);
        fake.files().AddFile(std::wstring(kBarMenus) + L"_Bar.txt",
                             Utf16Bytes(L"MENUITEM\tタブを複製\t47001\r\n \t\r\nMENUITEM\t範囲外\t46999\r\n"
                                        L"MENUITEM\t多すぎ\t47002\tx\r\n\xFEFFMENUITEM\t名前を変更\t47999 \r\n",
                                        true));
        fake.files().AddFile(std::wstring(kBarMenus) + L"_Filter.txt",
                             Utf16Bytes(L"MENUITEM\tフィルタ\t47003\r\n", true));
        fake.files().AddFile(std::wstring(kBarMenus) + L"Plain.txt", Utf16Bytes(L"MENUITEM\t普通\t47004\r\n", true));
        fake.files().AddFile(std::wstring(kBarMenus) + L"_None.txt", Utf16Bytes(L"POPUP\t何もない\r\n", true));
    }

    CommandTreeSources Sources(bool barCommands) const {
        return {catalog,
                library.get(),
                {L"メインメニューのコマンド", L"ユーザー定義バーの操作", L"全ての外部コマンド",
                 L"各種バー専用のメニューコマンド"},
                barCommands ? kBarMenus : L""};
    }

    FakePlatform fake;
    std::unique_ptr<platform::ResourceLibrary> library;
    CommandCatalog catalog;
};

// Alt is read for every row; an html row whose command has no text is told first. Bar commands add no row.
TEST_F(CommandTreeTest, TheDumpTakesTheFormOfEachRowAsAltStandsThen) {
    int rows = 0;
    std::vector<std::wstring> told;
    CommandTreeDump dump{[&] { return rows++ % 2 == 1; },
                         [&](const std::wstring& message) { told.push_back(message); }};
    BuildCommandTree(Sources(true), &dump);
    EXPECT_EQ(2 + 2 + 9 * 9 + 6 * 500, rows);
    // clang-format off
    EXPECT_EQ(L"\xFEFF"
              L"32800\t開く(O)\tファイルを開く\r\n"
              L"<tr><td>32801</td><td>閉じる(C)</td><td>閉じる</td></tr>\r\n"
              L"32810\t更新\t更新する\r\n"
              L"<tr><td>32811</td><td>詳細</td><td>詳細表示</td></tr>\r\n"
              L"33000\tバー1 - 操作1\tバー1 - 操作1\r\n",
              dump.text.substr(0, dump.text.find(L"<tr><td>33001")));
    // clang-format on
    EXPECT_EQ(std::wstring::npos, dump.text.find(L"47001"));
    EXPECT_TRUE(told.empty()) << "the numbered commands have their generic text";

    fake.system().AddLibrary(kLibrary, {{}, {{130, {Item(32900, L"名無し")}}}});
    library = fake.system().LoadDataLibrary(kLibrary);
    CommandTreeDump html{[] { return true; }, [&](const std::wstring& message) { told.push_back(message); }};
    BuildCommandTree(Sources(false), &html);
    EXPECT_EQ(std::vector<std::wstring>{L"Cannot get command string.(名無し:32900)"}, told);
    EXPECT_NE(std::wstring::npos,
              html.text.find(L"<tr><td>32900</td><td>名無し</td><td>Cannot get command string.</td></tr>"));
}

}  // namespace
