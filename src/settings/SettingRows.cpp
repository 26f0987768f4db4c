#include "settings/SettingRows.h"

void LoadRows(SettingsStore& store, const SectionRows& part) {
    store.SelectSection(part.section);
    for (const SettingRow& row : part.rows) {
        if (row.integer)
            store.*row.integer = store.ReadInt(row.name, row.integerDefault);
        else
            store.*row.text = store.ReadString(row.name, row.textDefault);
    }
}

void SaveRows(SettingsStore& store, const SectionRows& part) {
    store.SelectSection(part.section);
    for (const SettingRow& row : part.rows) {
        if (row.saved == Saved::No) continue;
        if (row.integer)
            store.WriteInt(row.name, store.*row.integer);
        else
            store.WriteString(row.name, store.*row.text);
    }
}
