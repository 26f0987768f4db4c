// The process-wide objects of Option.exe, in one place: start-up builds them, tests build their own.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/ApplyChain.h"
#include "app/HostSwitches.h"
#include "bindings/KeyTableSet.h"
#include "definitions/CommandCatalog.h"
#include "pages/CPvPluginInfo.h"
#include "platform/ResourceLibrary.h"
#include "services/DialogLanguage.h"
#include "services/MessageCatalog.h"
#include "services/ShareBlock.h"
#include "settings/SettingsStore.h"
#include "settings/UserDirectories.h"

struct AppServices {
    explicit AppServices(int screenLogPixelsY) : store(screenLogPixelsY) {}

    SettingsStore store;
    MessageCatalog messages;
    // The language of dialog texts, read once.
    DialogLanguage dialogLanguage;
    // Program, application and user directories, worked out once.
    UserDirectories directories;
    HostSwitches host;
    // What the host's shared block held, when the switch string named one.
    ShareBlock share;
    // The raw UserDir value as read at start.
    std::wstring userDir;
    // Where the tool's own values live beneath HKEY_CURRENT_USER.
    std::wstring commandOptionRoot;
    // The folder the host asked the option dialog to open the folder settings on, served once.
    std::wstring setFolder;
    // The codes Apply has recorded, kept while the process lives.
    PendingChanges pendingChanges;
    // The mouse-button and modifier names of the option dialog's hidden labels, empty entries kept.
    std::vector<std::wstring> mouseButtonNames;
    std::vector<std::wstring> modifierNames;
    // Names of the commands the user's lists define, read at start and emptied at the end.
    CommandCatalog commands;
    // The encoded commands of the items of the menu last parsed: entry n is item 62300 + n.
    std::vector<std::wstring> menuCommands;
    // The nine key modes the key page edits, loaded when it is first shown.
    KeyTableSet keys;
    // The preview bar's plug-ins, made when the preview page first shows.
    std::unique_ptr<CPvPluginInfo> previewPlugins;
    // The language library; null when it could not be loaded.
    std::unique_ptr<platform::ResourceLibrary> resourceModule;
};
