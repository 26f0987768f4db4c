// libFuzzer target: arbitrary bytes as a user menu file. The parser builds a menu tree whose every
// call names a menu that exists; a file the editor saved loads again row for row, but for the one
// change saving makes: a target behind an empty menu text moves up into its place.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <vector>

#include "definitions/CommandCatalog.h"
#include "definitions/MenuDefinition.h"
#include "platform/fake/FakePlatform.h"
#include "settings/UserDirectories.h"

namespace {

constexpr MenuBuilder::Menu kRoot = 1;

void Require(bool condition) {
    if (!condition) std::abort();
}

// Checks that items go into menus that exist, and that a popup is attached once.
class CheckingBuilder : public MenuBuilder {
public:
    Menu CreatePopup() override {
        created_.insert(++last_);
        return last_;
    }
    void AppendItem(Menu menu, const std::wstring&, uint32_t) override { Require(Exists(menu)); }
    void AppendSeparator(Menu menu) override { Require(Exists(menu)); }
    void AppendPopup(Menu menu, Menu popup, const std::wstring&) override {
        Require(Exists(menu) && menu != popup && created_.count(popup) && attached_.insert(popup).second);
    }

private:
    bool Exists(Menu menu) const { return menu == kRoot || created_.count(menu); }

    Menu last_ = kRoot;
    std::set<Menu> created_;
    std::set<Menu> attached_;
};

// The reader stops at a line of 32768 units, and indentation can push a line over: such a file is
// not expected to settle.
bool LinesFitTheReader(const std::vector<uint8_t>& bytes) {
    size_t length = 0;
    for (size_t at = 2; at + 1 < bytes.size(); at += 2) {
        const unsigned unit = bytes[at] | (bytes[at + 1] << 8);
        length = unit == L'\r' || unit == L'\n' ? 0 : length + 1;
        if (length >= 32768) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring path = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Menu\\Fuzz.txt";
    fake.files().AddFile(path, std::vector<uint8_t>(data, data + size));
    UserDirectories directories;

    CheckingBuilder builder;
    MenuPosition position = MenuPosition::Mouse;
    std::vector<std::wstring> commands;
    ParseMenuFile(path, builder, kRoot, &position, true, directories, commands);
    Require(commands.size() <= kMenuCommandLimit);

    const std::vector<MenuLine> lines = ReadMenuLines(path);
    CommandCatalog catalog;
    for (size_t i = 0; i < lines.size() && i < 64; ++i) CheckMenuLine(lines[i], catalog, nullptr, directories);

    if (!LinesFitTheReader(MenuFileBytes(lines))) return 0;
    Require(WriteMenuFile(path, lines));
    const std::vector<MenuLine> again = ReadMenuLines(path);
    Require(again.size() == lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        const MenuLine& line = lines[i];
        const bool movesUp = line.text.empty() && !line.target.empty();
        Require(again[i] == (movesUp ? SplitMenuLine(line.command + L"\t" + line.target) : line));
    }
    return 0;
}
