#include "pages/ClickTable.h"

#include <stdexcept>
#include <utility>

std::vector<ClickRow> ClickRowsOf(std::span<const ClickGroup> groups, const std::vector<std::wstring>& modifierNames) {
    std::vector<ClickRow> rows;
    for (const ClickGroup& group : groups) {
        for (size_t modifier = 0; modifier < group.members.size(); ++modifier) {
            const std::wstring suffix = modifier < modifierNames.size() ? modifierNames[modifier] : L"";
            rows.push_back({group.members[modifier], group.name + suffix});
        }
    }
    return rows;
}

ClickTable::ClickTable(std::vector<ClickRow> rows, std::vector<std::wstring> actions)
    : rows_(std::move(rows)), actions_(std::move(actions)), values_(rows_.size(), 0) {}

int32_t ClickTable::Checked(int32_t action) const {
    if (action < 0 || static_cast<size_t>(action) >= actions_.size())
        throw std::invalid_argument("click action outside the list of actions");
    return action;
}

void ClickTable::Load(const SettingsStore& store) {
    std::vector<int32_t> values;
    for (const ClickRow& row : rows_) values.push_back(Checked(store.*row.member));
    values_ = std::move(values);
}

void ClickTable::Store(SettingsStore& store) const {
    for (size_t row = 0; row < rows_.size(); ++row) store.*rows_[row].member = values_[row];
}

void ClickTable::Set(size_t row, int32_t action) {
    values_.at(row) = Checked(action);
}

void ClickTable::SwapRows(size_t first, size_t second, size_t count) {
    for (size_t n = 0; n < count; ++n) std::swap(values_.at(first + n), values_.at(second + n));
}
