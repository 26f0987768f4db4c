// Process-wide objects of the system: named mutexes, loaded modules and the clipboard.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/ResourceLibrary.h"

namespace platform {

// Something the system holds for us until destroyed.
class SystemObject {
public:
    SystemObject() = default;
    SystemObject(const SystemObject&) = delete;
    SystemObject& operator=(const SystemObject&) = delete;
    virtual ~SystemObject() = default;
};

// A library loaded to run its code; freed when the object goes. Its exports are numbers that only
// the library itself knows how to call.
class CodeLibrary {
public:
    CodeLibrary() = default;
    CodeLibrary(const CodeLibrary&) = delete;
    CodeLibrary& operator=(const CodeLibrary&) = delete;
    virtual ~CodeLibrary() = default;

    // The export of that exact (ANSI) name; 0 when the library has none.
    virtual uintptr_t ExportAddress(const char* name) const = 0;
    // Calls the export with a buffer of units 16-bit characters for it to fill, and gives back what
    // it wrote up to its terminator. Nothing tells the export how long the buffer is.
    virtual std::wstring CallFillingText(uintptr_t function, size_t units) const = 0;
    // Calls the export with one pointer-sized argument; its result is not looked at.
    virtual void CallWithValue(uintptr_t function, uintptr_t value) const = 0;
};

// The library, or null and the system's error code.
struct LoadedLibrary {
    std::unique_ptr<CodeLibrary> library;
    uint32_t error = 0;
};

class System {
public:
    System() = default;
    System(const System&) = delete;
    System& operator=(const System&) = delete;
    virtual ~System() = default;

    // Creates the named mutex when no process holds one of that name; null when one exists already.
    virtual std::unique_ptr<SystemObject> CreatePresenceMutex(const std::wstring& name) = 0;
    // Loads a resource library as data, without running any of its code; null on failure.
    virtual std::unique_ptr<ResourceLibrary> LoadDataLibrary(const std::wstring& path) = 0;
    // Loads a library with its code (LoadLibraryW): its entry point runs.
    virtual LoadedLibrary LoadCodeLibrary(const std::wstring& path) = 0;
    // Lets COM unload the servers nobody uses any more (CoFreeUnusedLibrariesEx(0, 0)).
    virtual void FreeUnusedLibraries() = 0;
    // Opens the clipboard, empties it and puts the text there as CF_UNICODETEXT, in a block from
    // GlobalAlloc with GMEM_DDESHARE; false when the clipboard cannot be opened.
    virtual bool SetClipboardText(const std::wstring& text) = 0;
    // The clipboard's CF_TEXT up to its NUL, which the system makes from Unicode text when that is
    // what the clipboard holds; false when the clipboard cannot be opened or holds no text.
    virtual bool ClipboardAnsiText(std::string& text) = 0;
};

}  // namespace platform
