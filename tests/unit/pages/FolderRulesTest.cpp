#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "pages/CDetailData.h"
#include "pages/FolderRules.h"
#include "platform/fake/FakePlatform.h"
#include "services/Format.h"
#include "unit/settings/RegistryValues.h"

namespace {

using platform::fake::FakePlatform;

std::wstring State(const std::wstring& path, int view = 2) {
    return BuildFolderState({.viewNumber = view, .path = path});
}

std::vector<std::wstring> Shown(const FolderRules& rules, RuleKind kind) {
    std::vector<std::wstring> shown;
    for (const RuleRow& row : rules.rows(kind)) shown.push_back(row.shown);
    return shown;
}

// Rules by their state strings (not the value names), virtual folders by the shell's name; a state string too
// short to read shows the path read before it.
TEST(FolderRules, LoadShowsWhatTheHostStored) {
    FakePlatform fake;
    fake.shell().names[L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"] = L"My Computer";
    StoreValue(L"FolderInfo", L"ignored name", State(L"C:\\Work"));
    StoreValue(L"FolderInfo", L"computer", State(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"));
    StoreValue(L"FolderInfo", L"unknown", State(L"::{0000}"));
    StoreValue(L"FolderInfo", L"short", L"0 1 0 02");
    for (int n = 0; n < 22; ++n) {
        StoreValue(L"FolderInfoEx", crt::Format(L"wp%03d", n), L"*" + std::to_wstring(n));
        StoreValue(L"FolderInfoEx", crt::Format(L"ws%03d", n), State(L"*\\w" + std::to_wstring(n)));
        StoreValue(L"FolderInfoEx", crt::Format(L"rp%03d", n), L"re" + std::to_wstring(n));
        StoreValue(L"FolderInfoEx", crt::Format(L"rs%03d", n), State(L"^r" + std::to_wstring(n)));
    }
    SettingsStore store;
    FolderRules rules;
    rules.Load(store);

    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Work", L"My Computer", L"::{0000}", L"::{0000}"}),
              Shown(rules, RuleKind::Exact));
    EXPECT_EQ(20u, rules.rows(RuleKind::Wildcard).size());
    EXPECT_EQ(L"*\\w19", rules.rows(RuleKind::Wildcard).back().shown) << "the path of the state, not wp019";
    EXPECT_EQ(10u, rules.rows(RuleKind::Regex).size());
}

// A folder the host asks for is offered once: cancelled, it is gone; accepted, it goes in beyond the
// limit and Apply writes it too, while the host reads only the first 20.
TEST(FolderRules, ListsAreFullAtTheirLimits) {
    FakePlatform fake;
    SettingsStore store;
    FolderRules rules;
    // clang-format off
    struct Case { RuleKind kind; size_t limit; };
    const Case cases[] = {{RuleKind::Exact, 500}, {RuleKind::Wildcard, 20}, {RuleKind::Regex, 10}};
    // clang-format on
    for (const Case& c : cases) {
        for (size_t n = 0; n + 1 < c.limit; ++n) rules.Append(c.kind, {.path = L"C:\\" + std::to_wstring(n)});
        EXPECT_FALSE(rules.Full(c.kind));
        rules.Append(c.kind, {.path = L"C:\\last"});
        EXPECT_TRUE(rules.Full(c.kind));
    }
    std::vector<RuleKind> offered;
    const auto answer = [&offered](bool accept) {
        return [&offered, accept](RuleKind& kind, FolderState& rule) {
            offered.push_back(kind);
            kind = RuleKind::Wildcard;
            return accept && rule == FolderState{.viewNumber = 4, .path = L"*\\requested"};
        };
    };
    std::wstring request = State(L"*\\requested", 4);
    EXPECT_EQ(std::nullopt, rules.ServeHostRequest(request, answer(false)));
    EXPECT_EQ(L"", request);
    request = State(L"*\\requested", 4);
    EXPECT_EQ(RuleKind::Wildcard, rules.ServeHostRequest(request, answer(true)));
    EXPECT_EQ(std::nullopt, rules.ServeHostRequest(request, answer(true)));
    EXPECT_EQ((std::vector{RuleKind::Exact, RuleKind::Exact}), offered);
    EXPECT_EQ(21u, rules.rows(RuleKind::Wildcard).size());
    rules.Save(store);
    EXPECT_EQ(500u, ValuesOf(L"FolderInfo").size());
    FolderRules again;
    again.Load(store);
    EXPECT_EQ(20u, again.rows(RuleKind::Wildcard).size());
    store.SelectSection(L"FolderInfoEx");
    EXPECT_EQ(L"*\\requested", store.ReadString(L"wp020", L""));
}

// Higher pattern pairs of an older save stay behind the empty pair; unedited rules keep their strings.
TEST(FolderRules, ApplyRewritesTheKeyAndClosesThePatternLists) {
    FakePlatform fake;
    const std::wstring hostOwned = L"0 1 0 02 00 0 00000100 00010000 00000000 07 00\tC:\\Kept";
    StoreValue(L"FolderInfo", L"C:\\Gone", State(L"C:\\Gone"));
    StoreValue(L"FolderInfo", L"C:\\Kept", hostOwned);
    for (int n = 0; n < 5; ++n) {
        StoreValue(L"FolderInfoEx", crt::Format(L"wp%03d", n), L"*" + std::to_wstring(n));
        StoreValue(L"FolderInfoEx", crt::Format(L"ws%03d", n), State(L"*" + std::to_wstring(n)));
    }
    StoreValue(L"FolderInfoEx", L"wp003", L"");
    SettingsStore store;
    FolderRules rules;
    rules.Load(store);
    ASSERT_EQ(3u, rules.rows(RuleKind::Wildcard).size());
    EXPECT_EQ(0, rules.Remove(RuleKind::Exact, rules.FindExact(L"c:\\gone")));
    rules.Append(RuleKind::Exact, {.path = L"C:\\New"});
    EXPECT_EQ(1, rules.Move(RuleKind::Wildcard, 0, +1));
    EXPECT_EQ(-1, rules.Move(RuleKind::Wildcard, 2, +1));
    rules.Save(store);

    EXPECT_EQ((NamedValues{{L"C:\\Kept", hostOwned}, {L"C:\\New", State(L"C:\\New", 0)}}), ValuesOf(L"FolderInfo"));
    const NamedValues patterns = ValuesOf(L"FolderInfoEx");
    const auto value = [&](const std::wstring& name) {
        for (const auto& [n, v] : patterns)
            if (n == name) return std::get<std::wstring>(v);
        return std::wstring(L"<absent>");
    };
    EXPECT_EQ((std::vector<std::wstring>{L"*1", L"*0", L"*2", L"", L"", L"*4", L"", L""}),
              (std::vector<std::wstring>{value(L"wp000"), value(L"wp001"), value(L"wp002"), value(L"wp003"),
                                         value(L"ws003"), value(L"wp004"), value(L"rp000"), value(L"rs000")}));
}

// Built-in keys, shown columns in the host's order, then the others; untitled and unknown columns left out.
TEST(FolderRules, SortListGroupsTheKeys) {
    FakePlatform fake;
    fake.shell().columns = {{L"Name", 30}, {L"Size", 10}, {L"", 10}, {L"Type", 20}, {L"Tags", 15}, {L"Owner", 12}};
    StoreValue(L"Detail", L"Index00", 3);
    StoreValue(L"Detail", L"Index03", 0);
    StoreValue(L"Detail", L"Index05", 9);
    SettingsStore store;
    CDetailData details;
    details.Load(store);
    EXPECT_EQ((std::vector<DetailColumn>{{1, 180, 3}, {1, 60, 1}, {1, 60, 2}, {1, 120, 0}, {0, 90, 4}, {0, 72, 9}}),
              details.records());

    std::vector<std::wstring> labels;
    for (int n = 0; n < kBuiltInSortKeys; ++n) labels.push_back(L"L" + std::to_wstring(n));
    const std::vector<SortChoice> choices = details.SortChoices(labels);
    std::vector<int32_t> keys;
    for (const SortChoice& choice : choices) keys.push_back(choice.key);
    EXPECT_EQ((std::vector<int32_t>{-1, -10, -2, -3, -4, -5, -6, -7, -8, -11, -12, -9, 3, 1, 0, 4}), keys);
    EXPECT_EQ((SortChoice{SortGroup::System, L"L9", -10}), choices[1]);
    EXPECT_EQ((SortChoice{SortGroup::Visible, L"Type", 3}), choices[12]);
    EXPECT_EQ((SortChoice{SortGroup::Hide, L"Tags", 4}), choices.back());
    EXPECT_EQ(3u, ValuesOf(L"Detail").size()) << "the table is read, never written";
}

}  // namespace
