#include <gtest/gtest.h>

#include <map>
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

// Where items stand in the tree as the user sees it: a path of labels from the root, and the id.
TEST(OptionPageTable, TheTreeFromTheLabelLists) {
    std::vector<OptionTreeItem> items;
    for (int list = kFirstLabelList; list <= kLastLabelList; ++list) {
        std::vector<std::wstring> labels;
        Tokenize(labels, kLabels[list - kFirstLabelList], L'/', false, true);
        ASSERT_TRUE(AddTreeItems(list, labels, items)) << list;
    }
    ASSERT_EQ(51u, items.size());
    std::map<std::wstring, int> paths;
    for (const OptionTreeItem& item : items) {
        std::wstring path = item.label;
        for (int parent = item.parent; parent >= 0; parent = items[parent].parent)
            path = items[parent].label + L"/" + path;
        paths[path] = item.id;
    }
    // clang-format off
    const std::map<std::wstring, int> expected = {
        {L"全体", 1007}, {L"全体/外観/色、フォント", 26}, {L"全体/外観/その他", 37}, {L"全体/スクリーンセーバー", 45},
        {L"リスト/表示/ステータスエリア", 28}, {L"リスト/アイコン/サムネイル", 9}, {L"リスト/動作", 13},
        {L"リスト/カスタムソート", 33}, {L"リスト/マウス/ホイール", 43}, {L"バー/タブ共通/タブバー", 8},
        {L"バー/ユーザー定義", 11}, {L"インターフェイス/コンテキストメニュー", 40}, {L"その他/確認メッセージ", 39},
    };
    // clang-format on
    for (const auto& [path, id] : expected) EXPECT_EQ(id, paths[path]) << testing::PrintToString(path);
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
