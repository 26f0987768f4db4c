#include "pages/FolderTree.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "services/CRuntime.h"
#include "settings/BarValues.h"

namespace {

using TI = TreeInfoValues;

// Enter, left click and middle click among the button names.
constexpr size_t kEnterPart = 0;
constexpr size_t kLeftClickPart = 2;
constexpr size_t kMiddleClickPart = 4;

bool IsHexDigit(wchar_t unit) {
    return (unit >= L'0' && unit <= L'9') || (unit >= L'a' && unit <= L'f') || (unit >= L'A' && unit <= L'F');
}

}  // namespace

std::vector<ClickGroup> TreeClickGroups(const std::vector<std::wstring>& buttonNames) {
    auto name = [&](size_t part) { return part < buttonNames.size() ? buttonNames[part] : std::wstring(); };
    return {
        {name(kEnterPart), {&TI::En, &TI::EnC, &TI::EnS, &TI::EnCS}},
        {name(kLeftClickPart), {&TI::L, &TI::LC, &TI::LS, &TI::LCS}},
        {name(kMiddleClickPart), {&TI::M, &TI::MC, &TI::MS, &TI::MCS}},
    };
}

ClickTable MakeTreeClickTable(const std::vector<std::wstring>& buttonNames,
                              const std::vector<std::wstring>& modifierNames, std::vector<std::wstring> actionLabels) {
    return ClickTable(ClickRowsOf(TreeClickGroups(buttonNames), modifierNames), std::move(actionLabels));
}

void KnownFolderCatalog::Build(platform::ShellNamespace& shell) {
    if (ready_) return;
    for (platform::KnownFolder& folder : shell.KnownFolders()) {
        std::wstring id = crt::MakeUpper(folder.id);
        ids_.push_back(std::move(id));
        names_.push_back(std::move(folder.name));
    }
    ready_ = true;
}

platform::KnownFolder KnownFolderCatalog::At(int index) const {
    if (index < 0 || static_cast<size_t>(index) >= ids_.size() || static_cast<size_t>(index) >= names_.size())
        throw std::invalid_argument("known folder index outside the catalogue");
    return {ids_[static_cast<size_t>(index)], names_[static_cast<size_t>(index)]};
}

bool IsIdentifierText(const std::wstring& text) {
    constexpr size_t kLength = 36;
    if (text.size() != kLength) return false;
    for (size_t i = 0; i < kLength; ++i) {
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? text[i] != L'-' : !IsHexDigit(text[i])) return false;
    }
    return true;
}

std::optional<TreeRoot> ResolveTreeRoot(const std::wstring& stored, platform::ShellNamespace& shell) {
    std::wstring text = stored;
    if (!text.empty() && (text[0] == L':' || text[0] == L'{'))
        std::erase_if(text, [](wchar_t unit) { return unit == L':' || unit == L'{' || unit == L'}'; });
    if (IsIdentifierText(text)) {
        std::optional<std::wstring> name = shell.KnownFolderName(text);
        if (!name) return std::nullopt;
        return TreeRoot{std::move(*name), std::move(text)};
    }
    std::optional<std::wstring> name = shell.AddressBarName(text);
    if (!name) return std::nullopt;
    return TreeRoot{std::move(*name), std::move(text)};
}

void TreeRootList::Load(const TextList& stored, platform::ShellNamespace& shell) {
    rows_.clear();
    for (const std::wstring& text : stored) {
        if (text.empty()) continue;
        if (std::optional<TreeRoot> root = ResolveTreeRoot(text, shell)) rows_.push_back(std::move(*root));
    }
}

TextList TreeRootList::Texts() const {
    TextList texts;
    for (const TreeRoot& root : rows_) texts.push_back(root.text);
    return texts;
}

int TreeRootList::Insert(int row, TreeRoot root) {
    const size_t at = row < 0 || static_cast<size_t>(row) > rows_.size() ? rows_.size() : static_cast<size_t>(row);
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(at), std::move(root));
    return static_cast<int>(at);
}

int TreeRootList::Remove(int row) {
    if (row < 0 || static_cast<size_t>(row) >= rows_.size()) return -1;
    rows_.erase(rows_.begin() + row);
    if (rows_.empty()) return -1;
    return std::min(row, static_cast<int>(rows_.size()) - 1);
}

int TreeRootList::Move(int row, int step) {
    const int to = row + step;
    if (row < 0 || to < 0 || static_cast<size_t>(row) >= rows_.size() || static_cast<size_t>(to) >= rows_.size())
        return -1;
    std::swap(rows_[static_cast<size_t>(row)], rows_[static_cast<size_t>(to)]);
    return to;
}
