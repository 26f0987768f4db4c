#include "pages/ClickTable.h"

#include <algorithm>
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

ClickTable::ClickTable(std::vector<ClickRow> rows, std::vector<std::wstring> actions, std::vector<int32_t> codes)
    : ClickTable(std::move(rows), std::move(actions)) {
    if (codes.size() != actions_.size()) throw std::invalid_argument("click codes and actions differ in number");
    codes_ = std::move(codes);
}

int32_t ClickTable::Checked(int32_t action) const {
    if (action < 0 || static_cast<size_t>(action) >= actions_.size())
        throw std::invalid_argument("click action outside the list of actions");
    return action;
}

void ClickTable::Load(const SettingsStore& store) {
    std::vector<int32_t> values;
    for (const ClickRow& row : rows_) {
        const int32_t stored = store.*row.member;
        if (codes_.empty()) {
            values.push_back(Checked(stored));
            continue;
        }
        const auto code = std::find(codes_.begin(), codes_.end(), stored);
        values.push_back(code == codes_.end() ? 0 : static_cast<int32_t>(code - codes_.begin()));
    }
    values_ = std::move(values);
}

void ClickTable::Store(SettingsStore& store) const {
    for (size_t row = 0; row < rows_.size(); ++row) {
        const int32_t value = values_[row];
        store.*rows_[row].member = codes_.empty() ? value : codes_[static_cast<size_t>(value)];
    }
}

void ClickTable::Set(size_t row, int32_t action) {
    values_.at(row) = Checked(action);
}

void ClickTable::SwapRows(size_t first, size_t second, size_t count) {
    for (size_t n = 0; n < count; ++n) std::swap(values_.at(first + n), values_.at(second + n));
}
