// The registry in memory, for tests: a tree of keys with typed values that follows the real
// registry's rules for everything the Registry interface offers.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Registry.h"

namespace platform::fake {

class FakeRegistry : public Registry {
public:
    FakeRegistry();
    ~FakeRegistry() override;

    long CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) override;
    long OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) override;
    long DeleteKey(const std::wstring& path) override;

    // A registry that refuses writes: creating a new key and every set or delete give
    // kRegistryAccessDenied; opening and reading go on as before.
    void RefuseWrites(bool refuse) { refuseWrites_ = refuse; }
    bool refusesWrites() const { return refuseWrites_; }

    struct Node;

private:
    class Key;
    long Find(const std::wstring& path, bool create, std::shared_ptr<Node>& node);

    std::shared_ptr<Node> root_;
    bool refuseWrites_ = false;
};

}  // namespace platform::fake
