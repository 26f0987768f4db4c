// Scripts that change their items: what the list holds afterwards, and what a loop over it visits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "script/DirectoryItems.h"
#include "unit/script/ScriptFixture.h"

namespace {

class ScriptSelectionTest : public ScriptFixture {
protected:
    ScriptSelectionTest() {
        fake.files().AddFile(L"C:\\Pics\\a.jpg", std::string_view("a"));
        fake.files().AddFile(L"C:\\Pics\\b.png", std::string_view("b"));
        fake.files().AddDirectory(L"C:\\Pics\\Old");
        fake.files().ChangeDirectory(L"C:\\Pics");
    }
};

TEST_F(ScriptSelectionTest, CommandsChangeTheList) {
    struct Case {
        const char* label;
        SelectionList before;
        std::vector<std::wstring> lines;
        SelectionList after;
        std::vector<std::wstring> messages;
    };
    // clang-format off
    const Case cases[] = {
        {"one item, empty or not", {}, {L"var v = x", L"appendselectitem = C:\\v", L"appendselectitem ="},
         {L"C:\\x", L""}, {}},
        {"csv fields trimmed, empties kept", {L"k"}, {L"appendcsvselectitem =  a , ,b,"}, {L"k", L"a", L"", L"b", L""},
         {}},
        {"an empty csv adds none", {L"k"}, {L"appendcsvselectitem ="}, {L"k"}, {}},
        {"a directory's entries behind its path", {}, {L"getselectitems = C:\\Pics\\"},
         {L"C:\\Pics\\a.jpg", L"C:\\Pics\\b.png", L"C:\\Pics\\Old"}, {}},
        {"without its separator, behind its parent's", {}, {L"getselectitems = C:\\Pics"},
         {L"C:\\a.jpg", L"C:\\b.png", L"C:\\Old"}, {}},
        {"a pattern's entries", {L"k"}, {L"getselectitems = C:\\Pics\\*.png"}, {L"k", L"C:\\Pics\\b.png"}, {}},
        {"a missing directory adds none", {}, {L"getselectitems = C:\\Nowhere"}, {}, {}},
        {"an empty pattern lists the current directory", {}, {L"getselectitems ="}, {L"a.jpg", L"b.png", L"Old"}, {}},
        {"with forward slashes the separator added is no backslash", {}, {L"getselectitems = C:/Pics",
         L"getselectitems = C:/Pics/*.*"}, {L"a.jpg", L"b.png"}, {}},
        {"matching items dropped, order kept", {L"C:\\a.jpg", L"C:\\b.txt", L"C:\\c.JPG", L"C:\\d.doc"},
         {L"removeselectitems = *.jpg;*.doc"}, {L"C:\\b.txt"}, {}},
        {"\"!\" keeps the matching ones", {L"C:\\a.jpg", L"C:\\b.txt", L"C:\\c.jpg"}, {L"removeselectitems = ! *.jpg"},
         {L"C:\\a.jpg", L"C:\\c.jpg"}, {}},
        {"a lone \"!\" is a pattern", {L"C:\\a.jpg", L"!"}, {L"removeselectitems = !"}, {L"C:\\a.jpg"}, {}},
        {"an empty pattern list drops nothing", {L"a", L"b"}, {L"removeselectitems ="}, {L"a", L"b"}, {}},
        {"the raw value: variables are not put in", {L"v", L"x"}, {L"var v = x", L"removeselectitems = v"}, {L"x"}, {}},
        {"no value empties the list", {L"a", L"b"}, {L"removeselectitems"}, {}, {}},
        {"no value empties it in a skipped block too", {L"a"}, {L"if 1 == 2", L"removeselectitems", L"endif"}, {}, {}},
        {"not inside a loop", {L"a", L"b"}, {L"for", L"removeselectitems = a", L"next", L"appendselectitem = c"},
         {L"a", L"b"}, {L"RemoveSelectItems can not be executed within the loop."}},
    };
    // clang-format on
    for (const Case& c : cases) {
        selection = c.before;
        RunLines(c.lines);
        EXPECT_EQ(c.after, selection) << c.label;
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }
}

// 1001 is looked at behind each entry, so a full list takes one more; old systems' shells get the plain style.
TEST_F(ScriptSelectionTest, ListingStopsAtItsLimit) {
    for (int i = 0; i < 1100; ++i) fake.files().AddFile(L"C:\\Many\\f" + std::to_wstring(i), std::string_view());
    fake.files().SetShellVersion(600);
    selection = {L"before"};
    RunLines({L"getselectitems = C:\\Many\\", L"getselectitems = C:\\Pics\\*.png"});
    ASSERT_EQ(kListedItemsLimit + 1, selection.size());
    EXPECT_EQ(L"C:\\Many\\f0", selection[1]);
    EXPECT_EQ(L"C:\\Pics\\b.png", selection.back());
    EXPECT_EQ(platform::FindStyle::Plain, fake.files().lastFindStyle());
}

}  // namespace
