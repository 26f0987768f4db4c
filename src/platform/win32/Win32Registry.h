// The registry beneath HKEY_CURRENT_USER.
#pragma once

#include <windows.h>

#include "platform/Registry.h"

namespace platform::win32 {

// Owns one open HKEY and closes it.
class UniqueHKey {
public:
    UniqueHKey() = default;
    explicit UniqueHKey(HKEY key) : key_(key) {}
    UniqueHKey(UniqueHKey&& other) noexcept : key_(other.release()) {}
    UniqueHKey& operator=(UniqueHKey&& other) noexcept {
        if (this != &other) reset(other.release());
        return *this;
    }
    UniqueHKey(const UniqueHKey&) = delete;
    UniqueHKey& operator=(const UniqueHKey&) = delete;
    ~UniqueHKey() { reset(); }

    HKEY get() const { return key_; }
    HKEY release() {
        HKEY key = key_;
        key_ = nullptr;
        return key;
    }
    void reset(HKEY key = nullptr) {
        if (key_) RegCloseKey(key_);
        key_ = key;
    }

private:
    HKEY key_ = nullptr;
};

class Win32Registry : public Registry {
public:
    long CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) override;
    long OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) override;
    long DeleteKey(const std::wstring& path) override;
};

}  // namespace platform::win32
