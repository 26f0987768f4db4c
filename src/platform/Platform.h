// The operating system as the portable core reaches it.
// COptionApp installs the real platform at start; a test installs fakes for its lifetime.
#pragma once

#include "platform/CodePages.h"
#include "platform/Environment.h"
#include "platform/FileSystem.h"
#include "platform/HostWindows.h"
#include "platform/Images.h"
#include "platform/Processes.h"
#include "platform/Prompts.h"
#include "platform/Registry.h"
#include "platform/SharedMemory.h"
#include "platform/ShellNamespace.h"
#include "platform/System.h"

namespace platform {

struct Platform {
    Registry& registry;
    FileSystem& files;
    Environment& environment;
    Prompts& prompts;
    System& system;
    HostWindows& windows;
    SharedMemory& sharedMemory;
    Processes& processes;
    ShellNamespace& shell;
    CodePages& codePages;
    Images& images;
};

// The platform in force. Using it before one is installed is a programming error.
Platform& Current();

// Puts a platform in force for its own lifetime and restores the one before.
class Installed {
public:
    explicit Installed(Platform& platform);
    ~Installed();
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;

private:
    Platform* previous_;
};

}  // namespace platform
