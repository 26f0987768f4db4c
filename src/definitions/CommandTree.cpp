#include "definitions/CommandTree.h"

#include "definitions/CommandDump.h"
#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/TextFileReader.h"
#include "services/Tokenizer.h"

namespace {

constexpr uint32_t kMainMenu = 130;
constexpr uint32_t kCommandMenu = 501;
constexpr size_t kMenuTextLimit = 1023;
constexpr size_t kBarMenuFilesLimit = 1001;
constexpr uint32_t kBarMenuLineLimit = 1040;
constexpr int32_t kFirstBarCommand = 47000;
constexpr int32_t kLastBarCommand = 47999;

// Menu items the picker never offers, with all that hangs under them.
bool IsLeftOut(uint32_t id) {
    return (id >= 32771 && id <= 32779) || id == 59392;
}

class TreeBuilder {
public:
    TreeBuilder(const CommandTreeSources& sources, CommandTreeDump* dump) : sources_(sources), dump_(dump) {}

    std::vector<CommandNode> Build() {
        std::vector<CommandNode> top;
        std::vector<size_t> lastInserted;
        if (sources_.library) {
            top.push_back(Group(sources_.labels[0]));
            if (auto menu = sources_.library->LoadMenuResource(kMainMenu)) WalkMenu(*menu, top.back().children, {});
            if (auto menu = sources_.library->LoadMenuResource(kCommandMenu)) lastInserted = WalkMenu(*menu, top, {});
        }
        // The two numbered branches hang under whatever the command menu inserted last.
        std::vector<CommandNode>* parent = &top;
        for (size_t index : lastInserted) parent = &(*parent)[index].children;
        AddNumberedBranch(*parent, sources_.labels[1], 6, 15, 9);
        AddNumberedBranch(*parent, sources_.labels[2], 0, 6, 500);
        if (!sources_.barMenuFolder.empty()) top.push_back(BarMenus());
        return top;
    }

private:
    static CommandNode Group(std::wstring text) { return {std::move(text), 0, CommandImage::ClosedGroup, {}}; }

    // Adds the menu's items to nodes; returns the path (indexes from nodes down) of the item inserted
    // last, empty when none was.
    std::vector<size_t> WalkMenu(const platform::Menu& menu, std::vector<CommandNode>& nodes,
                                 std::vector<size_t> path) {
        std::vector<size_t> last;
        for (const platform::MenuItem& item : menu) {
            std::wstring text = item.text.substr(0, kMenuTextLimit);
            if (text.empty() || IsLeftOut(item.id)) continue;
            const bool opensDialog = text.find(L"...") != std::wstring::npos;
            crt::Replace(text, L"...", L"");
            crt::Replace(text, L"&", L"");
            std::vector<size_t> here = path;
            here.push_back(nodes.size());
            last = here;
            if (item.popup) {
                nodes.push_back(Group(text));
                std::vector<size_t> inner = WalkMenu(item.children, nodes.back().children, here);
                if (!inner.empty()) last = inner;
                continue;
            }
            const auto id = static_cast<uint16_t>(item.id);
            nodes.push_back({text, id, opensDialog ? CommandImage::DialogCommand : CommandImage::Command, {}});
            AddDumpRow(id, text);
        }
        return last;
    }

    // A branch of numbered groups, the ranges [first, end) of the catalogue's numbered ranges, each
    // listing its first `count` identifiers.
    void AddNumberedBranch(std::vector<CommandNode>& parent, const std::wstring& label, size_t first, size_t end,
                           int count) {
        CommandNode branch = Group(label);
        for (size_t n = first; n < end; ++n) {
            const NumberedRange& range = kNumberedRanges[n];
            std::wstring caption = sources_.library ? sources_.library->LoadStringResource(range.format) : L"";
            crt::Replace(caption, L"%d", L"");
            CommandNode group = Group(caption);
            for (int offset = 0; offset < count; ++offset) {
                const auto id = static_cast<uint16_t>(range.first + offset);
                std::wstring text = sources_.catalog.GetCommandString(id, sources_.library);
                group.children.push_back({text, id, CommandImage::ListedCommand, {}});
                AddDumpRow(id, text);
            }
            branch.children.push_back(std::move(group));
        }
        parent.push_back(std::move(branch));
    }

    // One node per menu file of the bars ("_*.txt", but not _Filter.txt) that offers a bar command.
    CommandNode BarMenus() {
        CommandNode branch = Group(sources_.labels[3]);
        std::vector<platform::FindData> found =
            platform::Current().files.FindAll(sources_.barMenuFolder + L"*", platform::FindStyle::Plain);
        if (found.size() > kBarMenuFilesLimit) found.resize(kBarMenuFilesLimit);
        for (const platform::FindData& file : found) {
            if (file.name.empty() || file.name[0] != L'_' || file.name == L"_Filter.txt") continue;
            CommandNode menu = Group(file.name);
            ReadBarCommands(sources_.barMenuFolder + file.name, menu.children);
            if (!menu.children.empty()) branch.children.push_back(std::move(menu));
        }
        return branch;
    }

    static void ReadBarCommands(const std::wstring& path, std::vector<CommandNode>& commands) {
        TextFileReader reader;
        if (!reader.Open(path)) return;
        std::vector<wchar_t> buffer(kBarMenuLineLimit + 2, 0);
        while (reader.ReadLine(buffer.data(), kBarMenuLineLimit)) {
            std::wstring line = buffer.data();
            crt::Replace(line, L"\xFEFF", L"");
            line = crt::Trim(line);
            if (line.empty()) continue;
            std::vector<std::wstring> fields;
            if (Tokenize(fields, line, L'\t', false, true) != 3 || fields[0] != L"MENUITEM") continue;
            const int32_t id = crt::Wtoi(fields[2]);
            if (id < kFirstBarCommand || id > kLastBarCommand) continue;
            commands.push_back({fields[1], static_cast<uint16_t>(id), CommandImage::Command, {}});
        }
    }

    void AddDumpRow(uint16_t id, const std::wstring& treeText) {
        if (!dump_) return;
        const CommandDumpForm form = dump_->altDown() ? CommandDumpForm::Html : CommandDumpForm::Text;
        const std::wstring commandText = sources_.catalog.GetCommandString(id, sources_.library);
        if (form == CommandDumpForm::Html && commandText == CommandCatalog::kUnknownText)
            dump_->tellMissing(CommandDumpMissingText(treeText, id));
        dump_->text += CommandDumpRow(form, id, treeText, commandText);
    }

    const CommandTreeSources& sources_;
    CommandTreeDump* dump_;
};

}  // namespace

std::vector<CommandNode> BuildCommandTree(const CommandTreeSources& sources, CommandTreeDump* dump) {
    return TreeBuilder(sources, dump).Build();
}
