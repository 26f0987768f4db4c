#include "pages/FolderRules.h"

#include <utility>

#include "platform/Platform.h"
#include "services/CaseCompare.h"
#include "settings/SettingsGroups.h"

namespace {

constexpr size_t kRuleLimits[kRuleKinds] = {500, 20, 10};

// A shell namespace path, "::{...}", shows the name the shell gives it.
bool IsNamespacePath(const std::wstring& path) {
    return path.size() > 3 && path.starts_with(L"::");
}

}  // namespace

size_t RuleLimit(RuleKind kind) {
    return kRuleLimits[static_cast<size_t>(kind)];
}

RuleRow FolderRules::MakeRow(RuleKind kind, const std::wstring& state) {
    ParseFolderState(state, scratch_);
    RuleRow row{scratch_.path, scratch_.path, state};
    if (kind == RuleKind::Exact && IsNamespacePath(row.path))
        row.shown = platform::Current().shell.InFolderName(row.path).value_or(row.path);
    return row;
}

void FolderRules::Load(SettingsStore& store) {
    for (std::vector<RuleRow>& list : lists_) list.clear();
    LoadGroup(store, SettingsGroup::FolderInfo);
    for (const PathState& folder : store.FolderInfo) lists_[0].push_back(MakeRow(RuleKind::Exact, folder.state));
    LoadGroup(store, SettingsGroup::FolderInfoEx);
    for (const PathState& rule : store.WildPaths) lists_[1].push_back(MakeRow(RuleKind::Wildcard, rule.state));
    for (const PathState& rule : store.RegexPaths) lists_[2].push_back(MakeRow(RuleKind::Regex, rule.state));
}

void FolderRules::Save(SettingsStore& store) const {
    store.FolderInfo.clear();
    for (const RuleRow& row : rows(RuleKind::Exact)) store.FolderInfo.push_back({row.path, row.state});
    SaveGroup(store, SettingsGroup::FolderInfo);
    store.WildPaths.clear();
    store.RegexPaths.clear();
    for (const RuleRow& row : rows(RuleKind::Wildcard)) store.WildPaths.push_back({row.shown, row.state});
    for (const RuleRow& row : rows(RuleKind::Regex)) store.RegexPaths.push_back({row.shown, row.state});
    SaveGroup(store, SettingsGroup::FolderInfoEx);
}

int FolderRules::FindExact(const std::wstring& path, int except) const {
    const std::vector<RuleRow>& exact = rows(RuleKind::Exact);
    for (size_t n = 0; n < exact.size(); ++n) {
        if (static_cast<int>(n) != except && crt::EqualCollatingNoCase(exact[n].path, path)) return static_cast<int>(n);
    }
    return -1;
}

FolderState FolderRules::NewRule(const SettingsStore& store) {
    FolderState rule;
    rule.foldersFirst = store.AdvancedFoler;
    rule.direction = store.OrderMode;
    rule.viewNumber = store.ViewMode;
    rule.iconSize = store.IconSize;
    rule.sortKey = store.AdvancedFoler;
    rule.path = store.InitPath;
    return rule;
}

FolderState FolderRules::Rule(RuleKind kind, int row) const {
    FolderState rule;
    ParseFolderState(rows(kind).at(static_cast<size_t>(row)).state, rule);
    return rule;
}

std::optional<RuleKind> FolderRules::ServeHostRequest(std::wstring& request, const RuleEditor& edit) {
    if (request.empty()) return std::nullopt;
    FolderState rule;
    ParseFolderState(request, rule);
    RuleKind kind = RuleKind::Exact;
    const bool accepted = edit(kind, rule);
    request.clear();
    if (!accepted) return std::nullopt;
    Append(kind, rule);
    return kind;
}

void FolderRules::Append(RuleKind kind, const FolderState& rule) {
    lists_[Index(kind)].push_back(MakeRow(kind, BuildFolderState(rule)));
}

void FolderRules::Update(RuleKind kind, int row, const FolderState& rule) {
    lists_[Index(kind)].at(static_cast<size_t>(row)) = MakeRow(kind, BuildFolderState(rule));
}

int FolderRules::Remove(RuleKind kind, int row) {
    std::vector<RuleRow>& list = lists_[Index(kind)];
    if (row < 0 || static_cast<size_t>(row) >= list.size()) return -1;
    list.erase(list.begin() + row);
    if (list.empty()) return -1;
    return std::min(row, static_cast<int>(list.size()) - 1);
}

int FolderRules::Move(RuleKind kind, int row, int step) {
    std::vector<RuleRow>& list = lists_[Index(kind)];
    const int to = row + step;
    if (row < 0 || to < 0 || static_cast<size_t>(row) >= list.size() || static_cast<size_t>(to) >= list.size())
        return -1;
    std::swap(list[static_cast<size_t>(row)], list[static_cast<size_t>(to)]);
    return to;
}
