#include "services/DialogLanguage.h"

#include "settings/SettingsStore.h"

void DialogLanguage::Load() {
    if (!tag_.empty()) return;
    tag_ = DirectReadString(kDirectSettingsPath, L"NLS", kResourceTag);
    langOut_ = DirectReadInt(kDirectSettingsPath, L"LangOut", 0);
}

bool DialogLanguage::UsesTextFiles() {
    Load();
    return tag_ != kResourceTag || langOut_ != 0;
}
