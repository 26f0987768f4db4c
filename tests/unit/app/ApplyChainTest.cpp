#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app/ApplyChain.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsStore.h"

namespace {

using platform::fake::FakePlatform;

constexpr const wchar_t* kRoot = L"Software\\Tarnwick\\QOR\\Command\\Option";

// Pages as a script: which are opened, the codes each records, which one refuses.
class ScriptedPages : public ApplyPages {
public:
    std::map<int, std::vector<uint16_t>> opened;  // page id -> codes its step records
    std::set<int> refusing;
    std::vector<int> applied;

    bool Opened(int pageId) const override { return opened.count(pageId) > 0; }
    bool ApplyPage(int pageId, PendingChanges& changes) override {
        applied.push_back(pageId);
        if (refusing.count(pageId)) return false;
        for (uint16_t code : opened.at(pageId)) changes.Record(code);
        return true;
    }
};

std::vector<std::pair<platform::WindowRef, uint16_t>> Sent(FakePlatform& fake) {
    std::vector<std::pair<platform::WindowRef, uint16_t>> sent;
    for (const auto& command : fake.windows().commands()) sent.emplace_back(command.window, command.id);
    return sent;
}

TEST(ApplyChain, RunsOpenedPagesInIdOrderAndTellsEveryHost) {
    FakePlatform fake;
    fake.windows().AddHostWindow(0x10);
    fake.windows().AddHostWindow(0x20);
    ScriptedPages pages;
    pages.opened = {{36, {49033}}, {3, {49000}}, {13, {49000}}, {37, {}}, {20, {49017}}};
    PendingChanges changes;
    EXPECT_TRUE(RunApply(pages, changes, 36, kRoot));
    EXPECT_EQ((std::vector<int>{3, 13, 20, 36, 37}), pages.applied);
    const std::vector<std::pair<platform::WindowRef, uint16_t>> expected = {
        {0x10, 48999}, {0x10, 49000}, {0x10, 49017}, {0x10, 49033}, {0x10, 49099},
        {0x20, 48999}, {0x20, 49000}, {0x20, 49017}, {0x20, 49033}, {0x20, 49099},
    };
    EXPECT_EQ(expected, Sent(fake));
    EXPECT_EQ(36, DirectReadInt(std::wstring(kRoot) + L"\\OptionPage", L"Start", -1));
}

TEST(ApplyChain, ARefusalStopsTheChainKeepsStartAndSendsNothing) {
    FakePlatform fake;
    fake.windows().AddHostWindow(0x10);
    DirectWriteInt(std::wstring(kRoot) + L"\\OptionPage", L"Start", 1000);
    ScriptedPages pages;
    pages.opened = {{5, {49011}}, {20, {49017}}, {30, {49021}}};
    pages.refusing = {20};
    PendingChanges changes;
    EXPECT_FALSE(RunApply(pages, changes, 30, kRoot));
    EXPECT_EQ((std::vector<int>{5, 20}), pages.applied);
    EXPECT_TRUE(Sent(fake).empty());
    EXPECT_EQ(1000, DirectReadInt(std::wstring(kRoot) + L"\\OptionPage", L"Start", -1));
    // The code of the page saved before the refusal waits for the next Apply.
    pages.refusing.clear();
    EXPECT_TRUE(RunApply(pages, changes, 30, kRoot));
    EXPECT_EQ(std::set<uint16_t>({49011, 49017, 49021}), changes.codes());
}

TEST(ApplyChain, TheSeriesGoesOutEvenEmptyAndAgainOnTheNextApply) {
    FakePlatform fake;
    fake.windows().AddHostWindow(0x10);
    ScriptedPages pages;
    pages.opened = {{37, {}}};
    PendingChanges changes;
    EXPECT_TRUE(RunApply(pages, changes, 37, kRoot));
    EXPECT_TRUE(RunApply(pages, changes, 37, kRoot));
    const std::vector<std::pair<platform::WindowRef, uint16_t>> expected = {
        {0x10, 48999}, {0x10, 49099}, {0x10, 48999}, {0x10, 49099}};
    EXPECT_EQ(expected, Sent(fake));
}

TEST(ApplyChain, WithoutAHostStartIsStillStored) {
    FakePlatform fake;
    ScriptedPages pages;
    PendingChanges changes;
    EXPECT_TRUE(RunApply(pages, changes, 26, kRoot));
    EXPECT_EQ(26, DirectReadInt(std::wstring(kRoot) + L"\\OptionPage", L"Start", -1));
    EXPECT_TRUE(fake.prompts().shown().empty());
}

}  // namespace
