// Process-wide objects of the system: named mutexes, modules loaded as data and the clipboard.
#pragma once

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
    // Opens the clipboard, empties it and puts the text there as CF_UNICODETEXT, in a block from
    // GlobalAlloc with GMEM_DDESHARE; false when the clipboard cannot be opened.
    virtual bool SetClipboardText(const std::wstring& text) = 0;
    // The clipboard's CF_TEXT up to its NUL, which the system makes from Unicode text when that is
    // what the clipboard holds; false when the clipboard cannot be opened or holds no text.
    virtual bool ClipboardAnsiText(std::string& text) = 0;
};

}  // namespace platform
