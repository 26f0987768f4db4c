#include "pages/CDetailData.h"

#include <algorithm>

#include "platform/Platform.h"
#include "settings/SettingsGroups.h"

namespace {

// Name (fast) sits next to the plain character order, and "unsorted" comes last.
constexpr int32_t kBuiltInOrder[kBuiltInSortKeys] = {-1, -10, -2, -3, -4, -5, -6, -7, -8, -11, -12, -9};

}  // namespace

void CDetailData::Load(SettingsStore& store) {
    shellColumns_ = platform::Current().shell.DesktopColumns();
    std::vector<int32_t> widths;
    for (const platform::ShellColumn& column : shellColumns_) widths.push_back(column.charWidth);
    LoadDetailColumns(store, widths);
    records_ = store.Detail;
}

std::vector<SortChoice> CDetailData::SortChoices(const std::vector<std::wstring>& builtInLabels) const {
    std::vector<SortChoice> choices;
    for (int32_t key : kBuiltInOrder) {
        const auto part = static_cast<size_t>(~key);
        choices.push_back({SortGroup::System, part < builtInLabels.size() ? builtInLabels[part] : L"", key});
    }
    const auto titled = [&](int32_t index) {
        return index >= 0 && static_cast<size_t>(index) < shellColumns_.size() &&
               !shellColumns_[static_cast<size_t>(index)].title.empty();
    };
    for (const DetailColumn& record : records_) {
        if (record.Col && titled(record.Index))
            choices.push_back(
                {SortGroup::Visible, shellColumns_[static_cast<size_t>(record.Index)].title, record.Index});
    }
    for (size_t n = 0; n < shellColumns_.size(); ++n) {
        const auto index = static_cast<int32_t>(n);
        const auto record =
            std::find_if(records_.begin(), records_.end(), [&](const DetailColumn& r) { return r.Index == index; });
        if (record == records_.end() || record->Col || !titled(index)) continue;
        choices.push_back({SortGroup::Hide, shellColumns_[n].title, index});
    }
    return choices;
}

const wchar_t* CDetailData::GroupTitle(SortGroup group) {
    switch (group) {
        case SortGroup::System:
            return L"System";
        case SortGroup::Visible:
            return L"Visible";
        default:
            return L"Hide";
    }
}
