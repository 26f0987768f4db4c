// Reading a menu file into popup menus. The line buffer, the field rules and the limits are those
// the host's own reader has, so a file behaves the same in the test here as in the host.
#include <memory>
#include <utility>

#include "definitions/MenuDefinition.h"
#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/CaseCompare.h"
#include "services/Format.h"
#include "services/TextFileReader.h"
#include "services/Tokenizer.h"
#include "settings/PathRoots.h"

namespace {

constexpr uint32_t kLineLimit = 32768;

// Keywords of three-field lines that store their target, and the letter the host reads it by.
struct EncodedKeyword {
    const wchar_t* keyword;
    wchar_t prefix;
};
constexpr EncodedKeyword kTargetKeywords[] = {
    {L"SCRIPT", L'S'}, {L"DROPOPEN", L'D'}, {L"OPEN", L'O'},     {L"NEW", L'N'},
    {L"JUMP", L'J'},   {L"MULTIPLE", L'M'}, {L"WILDCARD", L'W'}, {L"EXECUTE", L'X'},
};
// Keywords of two-field lines that make an item: the file itself is the target of the first three.
constexpr EncodedKeyword kSelfKeywords[] = {
    {L"EDIT", L'E'},
    {L"MENUEDIT", L'A'},
    {L"NOTEPAD", L'P'},
    {L"WILDCARD", L'W'},
};

const EncodedKeyword* FindEncoded(const std::wstring& keyword, const auto& table) {
    for (const EncodedKeyword& row : table) {
        if (crt::EqualNoCase(keyword, row.keyword)) return &row;
    }
    return nullptr;
}

class MenuParser {
public:
    MenuParser(MenuBuilder& builder, MenuBuilder::Menu root, MenuPosition* position, bool hasParent,
               UserDirectories& directories, std::vector<std::wstring>& commands, std::wstring selfTarget)
        : builder_(builder),
          position_(position),
          hasParent_(hasParent),
          directories_(directories),
          commands_(commands),
          selfTarget_(std::move(selfTarget)),
          open_{root} {}

    // False when the line ends the file: an END with no popup left to close.
    bool Line(const std::wstring& line) {
        if (line == L"SEPARATOR") {
            builder_.AppendSeparator(open_.back());
            return true;
        }
        if (line == L"END") {
            open_.pop_back();
            return !open_.empty();
        }
        if (line == L"DROPTABLIST" || line == L"COPYTABLIST" || line == L"MOVETABLIST") return true;
        std::vector<std::wstring> fields;
        Tokenize(fields, line, L'\t', true, true);
        if (fields.size() == 3) ThreeFields(fields);
        if (fields.size() == 2) TwoFields(fields);
        return true;
    }

private:
    void ThreeFields(std::vector<std::wstring>& fields) {
        crt::Replace(fields[1], L"\\t", L"\t");
        if (crt::EqualNoCase(fields[0], L"MENUITEM")) {
            builder_.AppendItem(open_.back(), fields[1], static_cast<uint32_t>(crt::Wtoi(fields[2])));
        } else if (const EncodedKeyword* row = FindEncoded(fields[0], kTargetKeywords)) {
            AppendEncoded(fields[1], row->prefix, ExpandDirectoryMacros(fields[2], directories_));
        }
    }

    void TwoFields(const std::vector<std::wstring>& fields) {
        if (crt::EqualNoCase(fields[0], L"POPUP")) {
            MenuBuilder::Menu popup = builder_.CreatePopup();
            builder_.AppendPopup(open_.back(), popup, fields[1]);
            open_.push_back(popup);
        } else if (crt::EqualNoCase(fields[0], L"POSITION")) {
            if (position_) SetPosition(fields[1]);
        } else if (const EncodedKeyword* row = FindEncoded(fields[0], kSelfKeywords)) {
            AppendEncoded(fields[1], row->prefix, row->prefix == L'W' ? std::wstring() : selfTarget_);
        }
    }

    void SetPosition(const std::wstring& word) {
        if (crt::EqualNoCase(word, L"MOUSE")) {
            *position_ = MenuPosition::Mouse;
        } else if (crt::EqualNoCase(word, L"MAIN")) {
            *position_ = MenuPosition::Main;
        } else if (crt::EqualNoCase(word, L"PARENT") && hasParent_) {
            *position_ = MenuPosition::Parent;
        } else if (crt::EqualNoCase(word, L"DESKTOP")) {
            *position_ = MenuPosition::Desktop;
        }
    }

    // Items past the list's limit are left out of the menu altogether: an item whose command
    // could not be looked up would do nothing when chosen.
    void AppendEncoded(const std::wstring& text, wchar_t prefix, const std::wstring& target) {
        if (commands_.size() >= kMenuCommandLimit) return;
        const auto id = kFirstMenuListCommand + static_cast<uint32_t>(commands_.size());
        builder_.AppendItem(open_.back(), text, id);
        commands_.push_back(prefix + target);
    }

    MenuBuilder& builder_;
    MenuPosition* position_;
    bool hasParent_;
    UserDirectories& directories_;
    std::vector<std::wstring>& commands_;
    const std::wstring selfTarget_;  // the expanded path of the file, target of the editing items
    std::vector<MenuBuilder::Menu> open_;
};

}  // namespace

bool ParseMenuFile(const std::wstring& path, MenuBuilder& builder, MenuBuilder::Menu root, MenuPosition* position,
                   bool hasParent, UserDirectories& directories, std::vector<std::wstring>& menuCommands) {
    menuCommands.clear();
    if (position) *position = MenuPosition::Desktop;
    TextFileReader reader;
    if (!reader.Open(path)) {
        platform::Current().prompts.ShowMessage(crt::Format(L"Cannot open %s", path), platform::kStyleOk);
        return false;
    }
    MenuParser parser(builder, root, position, hasParent, directories, menuCommands,
                      ExpandDirectoryMacros(path, directories));
    auto buffer = std::make_unique<wchar_t[]>(kLineLimit + 2);
    while (reader.ReadLine(buffer.get(), kLineLimit)) {
        const std::wstring line = crt::Trim(buffer.get());
        if (line.empty()) continue;
        if (!parser.Line(line)) break;
    }
    return true;
}
