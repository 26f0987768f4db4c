// Strings and menus of the host's commands, from the language library when one is loaded.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ResourceLibrary.h"
#include "services/MessageCatalog.h"

// The string of that number; empty without a library or when the library has none.
std::wstring LoadLanguageString(const platform::ResourceLibrary* library, uint32_t id);

// A command's string holds its text, a line feed, then its tip: this is the text.
std::wstring CommandTextOf(const std::wstring& languageString);

// A menu for the command picker. Without a library the user is told so and there is no menu;
// a library without that menu gives none either, silently.
std::optional<platform::Menu> LoadLanguageMenu(const platform::ResourceLibrary* library, uint32_t id,
                                               MessageCatalog& messages);
