#include "settings/SettingsGroups.h"

#include <array>
#include <stdexcept>

#include "services/Format.h"
#include "settings/SettingRows.h"

namespace {

std::array<std::span<const GroupRows>, 3> Tables() {
    return {ApplicationGroupRows(), ListGroupRows(), BarGroupRows()};
}

const GroupRows& Definition(SettingsGroup group) {
    for (std::span<const GroupRows> table : Tables())
        for (const GroupRows& definition : table)
            if (definition.group == group) return definition;
    throw std::logic_error("a settings group without a table");
}

}  // namespace

void LoadGroup(SettingsStore& store, SettingsGroup group) {
    const GroupRows& definition = Definition(group);
    for (const SectionRows& part : definition.parts) LoadRows(store, part);
    if (definition.afterLoad) definition.afterLoad(store);
}

void SaveGroup(SettingsStore& store, SettingsGroup group) {
    const GroupRows& definition = Definition(group);
    for (const SectionRows& part : definition.parts) SaveRows(store, part);
    if (definition.afterSave) definition.afterSave(store);
}

void SaveWheelValues(SettingsStore& store) {
    store.WriteInt(L"AltWheel", store.AltWheel);
    store.WriteInt(L"UseWheelCmd", store.UseWheelCmd);
}

void LoadDetailColumns(SettingsStore& store, std::span<const int32_t> columnCharWidths) {
    store.SelectSection(L"Detail");
    store.Detail.clear();
    for (size_t n = 0; n < columnCharWidths.size(); ++n) {
        const int number = static_cast<int>(n);
        DetailColumn column;
        column.Col = store.ReadInt(crt::Format(L"Col%02d", number), n < 4 ? 1 : 0);
        column.Width = store.ReadInt(crt::Format(L"Width%02d", number), columnCharWidths[n] * 6);
        column.Index = store.ReadInt(crt::Format(L"Index%02d", number), number);
        store.Detail.push_back(column);
    }
}

SettingRange RangeOf(int32_t SettingsStore::*member) {
    for (std::span<const GroupRows> table : Tables())
        for (const GroupRows& group : table)
            for (const SectionRows& part : group.parts)
                for (const SettingRow& row : part.rows)
                    if (row.integer == member) return {row.low, row.high};
    return {};
}
