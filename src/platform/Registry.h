// The registry beneath HKEY_CURRENT_USER, as the program sees it.
// Calls return Win32 error codes, so that the core keeps the exact failure rules of the API.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace platform {

enum RegistryError : long {
    kRegistryOk = 0,
    kRegistryNotFound = 2,      // ERROR_FILE_NOT_FOUND
    kRegistryAccessDenied = 5,  // ERROR_ACCESS_DENIED
    kRegistryMoreData = 234,    // ERROR_MORE_DATA
    kRegistryNoMoreItems = 259, // ERROR_NO_MORE_ITEMS
    kRegistryKeyDeleted = 1018, // ERROR_KEY_DELETED
};

enum RegistryType : uint32_t {
    kRegNone = 0,
    kRegSz = 1,
    kRegExpandSz = 2,
    kRegBinary = 3,
    kRegDword = 4,
};

// One open key. Destroying it closes the key.
class RegistryKey {
public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    virtual ~RegistryKey() = default;

    // As RegQueryValueExW: data may be null to learn the size; *size is the buffer size in bytes
    // on entry and the data size on return. A buffer too small gives kRegistryMoreData.
    virtual long QueryValue(const std::wstring& name, uint32_t* type, void* data, uint32_t* size) = 0;
    // As RegSetValueExW: the bytes are stored as given, without any terminator added.
    virtual long SetValue(const std::wstring& name, uint32_t type, const void* data, uint32_t size) = 0;
    virtual long DeleteValue(const std::wstring& name) = 0;
    // As RegEnumValueW and RegEnumKeyExW, names only; kRegistryNoMoreItems past the end.
    virtual long EnumValueName(uint32_t index, std::wstring& name) = 0;
    virtual long EnumKeyName(uint32_t index, std::wstring& name) = 0;
};

class Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = default;

    // As RegCreateKeyExW on HKEY_CURRENT_USER with KEY_ALL_ACCESS: every missing key on the path is created.
    virtual long CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) = 0;
    // As RegOpenKeyExW on HKEY_CURRENT_USER with KEY_ALL_ACCESS: kRegistryNotFound when the key is absent.
    virtual long OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) = 0;
    // As RegDeleteKeyW: only a key without subkeys can go.
    virtual long DeleteKey(const std::wstring& path) = 0;
};

} // namespace platform
