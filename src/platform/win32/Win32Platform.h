// The real platform, put in force for the lifetime of the object: the program holds one from
// start to end.
#pragma once

#include "platform/Platform.h"
#include "platform/win32/Win32CodePages.h"
#include "platform/win32/Win32Environment.h"
#include "platform/win32/Win32FileSystem.h"
#include "platform/win32/Win32HostWindows.h"
#include "platform/win32/Win32Images.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32Prompts.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32SharedMemory.h"
#include "platform/win32/Win32ShellNamespace.h"
#include "platform/win32/Win32System.h"

namespace platform::win32 {

class Win32Platform {
public:
    Win32Platform();
    ~Win32Platform();
    Win32Platform(const Win32Platform&) = delete;
    Win32Platform& operator=(const Win32Platform&) = delete;

    Platform& platform() { return platform_; }

private:
    Win32Registry registry_;
    Win32FileSystem files_;
    Win32Environment environment_;
    Win32Prompts prompts_;
    Win32System system_;
    Win32HostWindows windows_;
    Win32SharedMemory sharedMemory_;
    Win32Processes processes_;
    Win32ShellNamespace shell_;
    Win32CodePages codePages_;
    Win32Images images_;
    Platform platform_{registry_,     files_,     environment_, prompts_,   system_, windows_,
                       sharedMemory_, processes_, shell_,       codePages_, images_};
    Installed installed_{platform_};
};

}  // namespace platform::win32
