#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "bindings/DefaultKeyTables.h"
#include "bindings/KeyListCsv.h"
#include "bindings/KeyTableSet.h"

namespace {

// Which blocks a reset gives back their defaults, from a table where every key of every mode is 1.
TEST(KeyPage, EachResetReachesItsOwnKeys) {
    struct Case {
        const char* label;
        std::function<void(KeyTableSet&)> reset;
        std::vector<int> resetWords;  // words back at their default; any other stays 1
    };
    const KeyTableSet& defaults = DefaultKeyTables();
    auto wordsOf = [](int firstMode, int modes) {
        std::vector<int> words;
        for (int n = firstMode * kModifierCount * kKeyCount; n < (firstMode + modes) * kModifierCount * kKeyCount; ++n)
            words.push_back(n);
        return words;
    };
    std::vector<int> block;
    for (int key = 0; key < kKeyCount; ++key) block.push_back((kModifierShift + 4 * 1) * kKeyCount + key);
    const Case cases[] = {
        {"one key of the block shown",
         [&](KeyTableSet& set) { set.ResetKey(defaults, 1, kModifierShift, 5); },
         {(kModifierShift + 4 * 1) * kKeyCount + 5}},
        {"the block shown", [&](KeyTableSet& set) { set.ResetBlock(defaults, 1, kModifierShift); }, block},
        {"all keys: the first three modes only", [&](KeyTableSet& set) { set.ResetAllKeys(defaults); }, wordsOf(0, 3)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        KeyTableSet set;
        for (KeyMapTable& mode : set.modes) mode.fill(1);
        c.reset(set);
        KeyTableSet expected;
        for (KeyMapTable& mode : expected.modes) mode.fill(1);
        for (int word : c.resetWords)
            expected.modes[word / (kModifierCount * kKeyCount)][word % (kModifierCount * kKeyCount)] =
                defaults.modes[word / (kModifierCount * kKeyCount)][word % (kModifierCount * kKeyCount)];
        EXPECT_EQ(expected, set);
    }
}

TEST(KeyPage, SavedListsAreNamedByModeAndModifier) {
    EXPECT_EQ(
        (std::vector<std::wstring>{L"Command.csv", L"Search Shift.csv", L"mode3 Ctrl.csv", L"mode9 Ctrl+Shift.csv"}),
        (std::vector<std::wstring>{PageKeyListName(0, kModifierNone), PageKeyListName(1, kModifierShift),
                                   PageKeyListName(2, kModifierCtrl), PageKeyListName(8, kModifierCtrlShift)}));
}

}  // namespace
