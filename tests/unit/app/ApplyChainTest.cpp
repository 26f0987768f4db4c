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

// When all pages agree every host hears 48999, the codes, 49099, and "Start" keeps the page shown; a
// refusal sends nothing, and the next Apply sends everything still pending.
TEST(ApplyChain, OpenedPagesApplyInIdOrderAndEveryHostHearsTheSeries) {
    // refusing: on the first Apply only; series: what it sends, empty when it fails; again: what the next one sends.
    // clang-format off
    struct Case { const char* label; std::map<int, std::vector<uint16_t>> opened; std::set<int> refusing; int hosts;
                  int shown; std::vector<int> applied; std::vector<uint16_t> series, again; };
    const Case cases[] = {
        {"codes in order, each once", {{36, {49033}}, {3, {49000}}, {13, {49000}}, {37, {}}, {20, {49017}}}, {}, 2, 36,
         {3, 13, 20, 36, 37}, {48999, 49000, 49017, 49033, 49099}, {48999, 49000, 49017, 49033, 49099}},
        {"a refusal", {{5, {49011}}, {20, {49017}}, {30, {49021}}}, {20}, 1, 30,
         {5, 20}, {}, {48999, 49011, 49017, 49021, 49099}},
        {"an empty series goes out", {{37, {}}}, {}, 1, 37, {37}, {48999, 49099}, {48999, 49099}},
        {"no host", {}, {}, 0, 26, {}, {}, {}},
    };
    // clang-format on
    const std::wstring optionPage = std::wstring(kRoot) + L"\\OptionPage";
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        FakePlatform fake;
        for (int host = 1; host <= c.hosts; ++host) fake.windows().AddHostWindow(0x10 * host);
        DirectWriteInt(optionPage, L"Start", 1000);
        ScriptedPages pages;
        pages.opened = c.opened;
        pages.refusing = c.refusing;
        PendingChanges changes;
        auto sentOnApply = [&](bool succeeds) {
            const size_t before = fake.windows().commands().size();
            EXPECT_EQ(succeeds, RunApply(pages, changes, c.shown, kRoot));
            std::vector<std::pair<platform::WindowRef, uint16_t>> sent;
            for (size_t i = before; i < fake.windows().commands().size(); ++i)
                sent.emplace_back(fake.windows().commands()[i].window, fake.windows().commands()[i].id);
            return sent;
        };
        auto toEveryHost = [&](const std::vector<uint16_t>& series) {
            std::vector<std::pair<platform::WindowRef, uint16_t>> expected;
            for (int host = 1; host <= c.hosts; ++host)
                for (uint16_t code : series) expected.emplace_back(0x10 * host, code);
            return expected;
        };
        const bool succeeds = c.refusing.empty();
        EXPECT_EQ(toEveryHost(c.series), sentOnApply(succeeds));
        EXPECT_EQ(c.applied, pages.applied);
        EXPECT_EQ(succeeds ? c.shown : 1000, DirectReadInt(optionPage, L"Start", -1));
        pages.refusing.clear();
        EXPECT_EQ(toEveryHost(c.again), sentOnApply(true));
        EXPECT_EQ(c.shown, DirectReadInt(optionPage, L"Start", -1));
        EXPECT_TRUE(fake.prompts().shown().empty());
    }
}

}  // namespace
