#include <gtest/gtest.h>

#include <set>

#include "app/OptionPageTable.h"
#include "services/Tokenizer.h"

namespace {

// The hidden label lists as the dialog template holds them.
const wchar_t* const kLabels[] = {
    L"全体/色、フォント/動作/共通操作/ネットワーク/スキン/インクリメンタルサーチ/バージョンチェック/外観/その他/"
    L"スクリーンセーバー",
    L"リスト/表示共通/モード依存の表示/ステータスエリア/動作/自動更新/マウス/サムネイル/カスタムソート/初期値/"
    L"フォルダー設定/アイコンの取得方法/表示/アイコン/フィルタ・検索/画面分割/選択クリック/空欄クリック/ホイール/"
    L"アドレスバー",
    L"バー/タブバー/フォルダー/プレビュー/最近閉じたフォルダー/ユーザー定義/ウィンドウ管理/タブ共通/アイテムクリップ",
    L"インターフェイス/キー割り当て/マウスジェスチャ/コマンド定義/標準コマンド/スクリプトコマンド/メニュー定義/"
    L"コンテキストメニュー",
    L"その他/起動制御/サウンド再生/イベントコマンド/確認メッセージ",
};

// The tree as the user sees it, written out independently of the table in the code.
// clang-format off
struct Expected { int depth; const wchar_t* label; int id; };
const Expected kTree[] = {
    {0, L"全体", 1007}, {1, L"外観", 1000}, {2, L"色、フォント", 26}, {2, L"スキン", 12}, {2, L"その他", 37}, {1, L"動作", 20},
    {1, L"共通操作", 24}, {1, L"ネットワーク", 30}, {1, L"インクリメンタルサーチ", 32}, {1, L"バージョンチェック", 34}, {1, L"スクリーンセーバー", 45},
    {0, L"リスト", 1001}, {1, L"表示", 1008}, {2, L"初期値", 35}, {2, L"フォルダー設定", 36}, {2, L"表示共通", 3}, {2, L"モード依存の表示", 29},
    {2, L"ステータスエリア", 28}, {1, L"アイコン", 1009}, {2, L"アイコンの取得方法", 17}, {2, L"サムネイル", 9}, {1, L"動作", 13},
    {1, L"アドレスバー", 44}, {1, L"フィルタ・検索", 38}, {1, L"自動更新", 27}, {1, L"画面分割", 41}, {1, L"カスタムソート", 33},
    {1, L"マウス", 1010}, {2, L"選択クリック", 4}, {2, L"空欄クリック", 42}, {2, L"ホイール", 43},
    {0, L"バー", 1002}, {1, L"タブ共通", 31}, {2, L"タブバー", 8}, {1, L"フォルダー", 10}, {1, L"プレビュー", 6}, {1, L"最近閉じたフォルダー", 7},
    {1, L"ユーザー定義", 11},
    {0, L"インターフェイス", 1003}, {1, L"キー割り当て", 2}, {1, L"マウスジェスチャ", 14}, {1, L"コマンド定義", 23}, {1, L"標準コマンド", 25},
    {1, L"スクリプトコマンド", 21}, {1, L"メニュー定義", 22}, {1, L"コンテキストメニュー", 40},
    {0, L"その他", 1004}, {1, L"起動制御", 5}, {1, L"イベントコマンド", 18}, {1, L"サウンド再生", 19}, {1, L"確認メッセージ", 39},
};
// clang-format on

TEST(OptionPageTable, TheTreeFromTheLabelLists) {
    std::vector<OptionTreeItem> items;
    for (int list = kFirstLabelList; list <= kLastLabelList; ++list) {
        std::vector<std::wstring> labels;
        Tokenize(labels, kLabels[list - kFirstLabelList], L'/', false, true);
        ASSERT_TRUE(AddTreeItems(list, labels, items)) << list;
    }
    ASSERT_EQ(std::size(kTree), items.size());
    for (size_t i = 0; i < items.size(); ++i) {
        int depth = 0;
        for (int parent = items[i].parent; parent >= 0; parent = items[parent].parent) ++depth;
        EXPECT_EQ(kTree[i].depth, depth) << i;
        EXPECT_EQ(kTree[i].label, items[i].label) << i;
        EXPECT_EQ(kTree[i].id, items[i].id) << i;
    }
}

TEST(OptionPageTable, AWrongCountAddsNothing) {
    std::vector<OptionTreeItem> items;
    for (size_t count : {10u, 12u}) EXPECT_FALSE(AddTreeItems(1401, std::vector<std::wstring>(count, L"x"), items));
    EXPECT_TRUE(items.empty());
    EXPECT_EQ(std::pair(11, 5), std::pair(RequiredLabelCount(1401), RequiredLabelCount(1405)));
}

TEST(OptionPageTable, PagesHelpAndGroupTexts) {
    std::set<int> ids, templates, twoTo45;
    for (const OptionPageInfo& page : OptionPages()) ids.insert(page.id), templates.insert(page.templateId);
    for (int id = 2; id <= 45; ++id) twoTo45.insert(id);
    EXPECT_EQ(twoTo45, ids);
    for (int id : {1, 2, 45, 46, 1000, 1010}) EXPECT_EQ(id >= 2 && id <= 45, IsPageId(id)) << id;
    EXPECT_EQ(44u, templates.size()) << "each page its own template";

    struct HelpCase {
        int id;
        const wchar_t* path;
    };
    const HelpCase help[] = {{26, L"7.Option/1.General/01.html"},   {8, L"7.Option/3.Bar/01_1.html"},
                             {40, L"7.Option/4.Interface/06.html"}, {15, L"7.Option/00.html"},
                             {1003, L"7.Option/00.html"},           {999, L"7.Option/00.html"}};
    for (const auto& c : help) EXPECT_EQ(c.path, HelpPathOf(c.id)) << c.id;

    const std::pair<int, int> groups[] = {{1000, 1900}, {1001, 1901}, {1007, 1907}, {1010, 1910},
                                          {1011, 1900}, {15, 1900},   {0, 1900}};
    for (const auto& [id, control] : groups) EXPECT_EQ(control, GroupTextControlOf(id)) << id;
}

}  // namespace
