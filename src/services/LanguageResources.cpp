#include "services/LanguageResources.h"

#include "platform/Platform.h"
#include "services/MessageIds.h"

std::wstring LoadLanguageString(const platform::ResourceLibrary* library, uint32_t id) {
    return library ? library->LoadStringResource(id) : std::wstring();
}

std::wstring CommandTextOf(const std::wstring& languageString) {
    return languageString.substr(0, languageString.find(L'\n'));
}

std::optional<platform::Menu> LoadLanguageMenu(const platform::ResourceLibrary* library, uint32_t id,
                                               MessageCatalog& messages) {
    if (!library) {
        platform::Current().prompts.ShowMessage(messages.Get(kMsgLanguageLibraryMissing), platform::kStyleOk);
        return std::nullopt;
    }
    return library->LoadMenuResource(id);
}
