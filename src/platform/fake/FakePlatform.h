// Every fake at once, put in force for the lifetime of the object: the fixture of portable tests.
#pragma once

#include "platform/Platform.h"
#include "platform/fake/FakeCodePages.h"
#include "platform/fake/FakeEnvironment.h"
#include "platform/fake/FakeFileSystem.h"
#include "platform/fake/FakeHostWindows.h"
#include "platform/fake/FakeImages.h"
#include "platform/fake/FakeProcesses.h"
#include "platform/fake/FakePrompts.h"
#include "platform/fake/FakeRegistry.h"
#include "platform/fake/FakeSharedMemory.h"
#include "platform/fake/FakeShellNamespace.h"
#include "platform/fake/FakeSystem.h"

namespace platform::fake {

class FakePlatform {
public:
    FakePlatform();
    ~FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    FakeRegistry& registry() { return registry_; }
    FakeFileSystem& files() { return files_; }
    FakeEnvironment& environment() { return environment_; }
    FakePrompts& prompts() { return prompts_; }
    FakeSystem& system() { return system_; }
    FakeHostWindows& windows() { return windows_; }
    FakeSharedMemory& sharedMemory() { return sharedMemory_; }
    FakeProcesses& processes() { return processes_; }
    FakeShellNamespace& shell() { return shell_; }
    FakeCodePages& codePages() { return codePages_; }
    FakeImages& images() { return images_; }
    Platform& platform() { return platform_; }

private:
    FakeRegistry registry_;
    FakeFileSystem files_;
    FakeEnvironment environment_;
    FakePrompts prompts_;
    FakeSystem system_;
    FakeHostWindows windows_;
    FakeSharedMemory sharedMemory_;
    FakeProcesses processes_;
    FakeShellNamespace shell_;
    FakeCodePages codePages_;
    FakeImages images_;
    Platform platform_{registry_,     files_,     environment_, prompts_,   system_, windows_,
                       sharedMemory_, processes_, shell_,       codePages_, images_};
    Installed installed_{platform_};
};

}  // namespace platform::fake
