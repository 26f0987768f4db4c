// Named mutexes and libraries for tests: which names exist, which libraries load and what they hold.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/System.h"

namespace platform::fake {

// What a fake language library holds.
struct LibraryContent {
    std::map<uint32_t, std::wstring> strings;
    std::map<uint32_t, Menu> menus;
};

class FakeSystem : public System {
public:
    std::unique_ptr<SystemObject> CreatePresenceMutex(const std::wstring& name) override;
    std::unique_ptr<ResourceLibrary> LoadDataLibrary(const std::wstring& path) override;

    // A library at this path loads, with this content; any other does not.
    void AddLibrary(const std::wstring& path, LibraryContent content = {}) {
        libraries_[path] = std::make_shared<const LibraryContent>(std::move(content));
    }
    bool HoldsMutex(const std::wstring& name) const { return mutexes_->count(name) > 0; }
    const std::vector<std::wstring>& loadAttempts() const { return loadAttempts_; }
    // Libraries loaded and not yet freed.
    int loadedLibraries() const { return *loaded_; }

private:
    std::shared_ptr<std::set<std::wstring>> mutexes_ = std::make_shared<std::set<std::wstring>>();
    std::map<std::wstring, std::shared_ptr<const LibraryContent>> libraries_;
    std::vector<std::wstring> loadAttempts_;
    std::shared_ptr<int> loaded_ = std::make_shared<int>(0);
};

}  // namespace platform::fake
