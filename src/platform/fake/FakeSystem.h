// Named mutexes, libraries and the clipboard for tests: which names exist, which libraries load and
// what they hold, and what text the clipboard has.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/System.h"
#include "platform/fake/CaseFold.h"

namespace platform::fake {

// What a fake language library holds.
struct LibraryContent {
    std::map<uint32_t, std::wstring> strings;
    std::map<uint32_t, Menu> menus;
};

// What a fake code library exports, and the text each of its exports writes when it is given a
// buffer to fill (up to the buffer's size).
struct CodeContent {
    std::vector<std::string> exports;
    std::wstring filled;
};

class FakeSystem : public System {
public:
    std::unique_ptr<SystemObject> CreatePresenceMutex(const std::wstring& name) override;
    std::unique_ptr<ResourceLibrary> LoadDataLibrary(const std::wstring& path) override;
    // A path neither added nor refused fails with 126, the system's "module not found".
    LoadedLibrary LoadCodeLibrary(const std::wstring& path) override;
    void FreeUnusedLibraries() override { ++unusedFrees_; }
    bool SetClipboardText(const std::wstring& text) override;
    // Unicode text comes out in Windows-1252, the fake environment's ANSI code page.
    bool ClipboardAnsiText(std::string& text) override;

    // A library at this path loads, with this content; any other does not.
    void AddLibrary(const std::wstring& path, LibraryContent content = {}) {
        libraries_[path] = std::make_shared<const LibraryContent>(std::move(content));
    }
    // Paths of code libraries compare in any letter case, as the file system's do.
    void AddCodeLibrary(const std::wstring& path, CodeContent content) {
        codeLibraries_[UpperCase(path)] = std::make_shared<const CodeContent>(std::move(content));
    }
    // "load <path>", "free <path>", and each call as "<export> <argument>", in turn.
    const std::vector<std::wstring>& codeEvents() const { return *codeEvents_; }
    int unusedFrees() const { return unusedFrees_; }
    bool HoldsMutex(const std::wstring& name) const { return mutexes_->count(name) > 0; }
    const std::vector<std::wstring>& loadAttempts() const { return loadAttempts_; }
    // Libraries loaded and not yet freed.
    int loadedLibraries() const { return *loaded_; }

    // Another program holds the clipboard open: nobody else can open it.
    void HoldClipboard(bool held) { clipboardHeld_ = held; }
    // Text that another program put on the clipboard as CF_TEXT alone.
    void PutClipboardAnsiText(const std::string& text) {
        clipboardUnicode_.reset();
        clipboardAnsi_ = text;
    }
    // The Unicode text on the clipboard, if any.
    const std::optional<std::wstring>& clipboardText() const { return clipboardUnicode_; }

private:
    std::shared_ptr<std::set<std::wstring>> mutexes_ = std::make_shared<std::set<std::wstring>>();
    std::map<std::wstring, std::shared_ptr<const LibraryContent>> libraries_;
    std::vector<std::wstring> loadAttempts_;
    std::shared_ptr<int> loaded_ = std::make_shared<int>(0);
    std::map<std::wstring, std::shared_ptr<const CodeContent>> codeLibraries_;
    std::shared_ptr<std::vector<std::wstring>> codeEvents_ = std::make_shared<std::vector<std::wstring>>();
    int unusedFrees_ = 0;
    bool clipboardHeld_ = false;
    std::optional<std::wstring> clipboardUnicode_;
    std::optional<std::string> clipboardAnsi_;
};

}  // namespace platform::fake
