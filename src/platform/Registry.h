// The registry beneath HKEY_CURRENT_USER, as the program sees it.
// Calls return Win32 error codes, so that the core keeps the exact failure rules of the API.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace platform {

enum RegistryError : long {
    kRegistryOk = 0,
    kRegistryNotFound = 2,           // ERROR_FILE_NOT_FOUND
    kRegistryAccessDenied = 5,       // ERROR_ACCESS_DENIED
    kRegistryInvalidParameter = 87,  // ERROR_INVALID_PARAMETER
    kRegistryBadPathname = 161,      // ERROR_BAD_PATHNAME
    kRegistryMoreData = 234,         // ERROR_MORE_DATA
    kRegistryNoMoreItems = 259,      // ERROR_NO_MORE_ITEMS
    kRegistryKeyDeleted = 1018,      // ERROR_KEY_DELETED
};

enum RegistryType : uint32_t {
    kRegNone = 0,
    kRegSz = 1,
    kRegExpandSz = 2,
    kRegBinary = 3,
    kRegDword = 4,
    kRegMultiSz = 7,
};

// Longest name the caller's buffer of RegEnumValueW may need: 16,383 characters and the terminator.
constexpr uint32_t kMaxValueNameChars = 16384;

// One open key. Destroying it closes the key. Once the key is deleted, every call on it
// gives kRegistryKeyDeleted, even when a key of the same path is created again.
class RegistryKey {
public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    virtual ~RegistryKey() = default;

    // As RegQueryValueExW (the empty name is the default value): data may be null to learn the
    // size; *size is the buffer size in bytes on entry and the data size on return. A buffer too
    // small gives kRegistryMoreData with the needed size; data without size gives
    // kRegistryInvalidParameter. Nothing is written past the data, not even a terminator.
    virtual long QueryValue(const std::wstring& name, uint32_t* type, void* data, uint32_t* size) = 0;
    // As RegSetValueExW: the bytes are stored as given. One rule of the real API is kept: for the
    // string types, when the last counted character is not NUL and the character right after the
    // counted bytes is, that terminator is stored too. So string data must stay readable for two
    // bytes past size, and a text passed with its terminator behind it is stored with it.
    virtual long SetValue(const std::wstring& name, uint32_t type, const void* data, uint32_t size) = 0;
    virtual long DeleteValue(const std::wstring& name) = 0;
    // As RegEnumValueW: nameChars is the caller's name buffer in characters, terminator included,
    // and a longer name gives kRegistryMoreData with name untouched. type, data and size as in
    // QueryValue; a data buffer too small gives kRegistryMoreData with the name filled in.
    // kRegistryNoMoreItems past the end.
    virtual long EnumValue(uint32_t index, uint32_t nameChars, std::wstring& name, uint32_t* type, void* data,
                           uint32_t* size) = 0;
    // As RegEnumKeyExW, names only; kRegistryNoMoreItems past the end.
    virtual long EnumKeyName(uint32_t index, std::wstring& name) = 0;

    long EnumValueName(uint32_t index, std::wstring& name) {
        return EnumValue(index, kMaxValueNameChars, name, nullptr, nullptr, nullptr);
    }
};

// Key paths are relative to HKEY_CURRENT_USER and use "\" between names. As in the real API a
// trailing or doubled "\" is ignored, a leading one gives kRegistryBadPathname, and a name of more
// than 255 characters gives kRegistryInvalidParameter.
class Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = default;

    // As RegCreateKeyExW with KEY_ALL_ACCESS: every missing key on the path is created.
    virtual long CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) = 0;
    // As RegOpenKeyExW with KEY_ALL_ACCESS: kRegistryNotFound when the key is absent.
    virtual long OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) = 0;
    // As RegDeleteKeyW: only a key without subkeys can go; one with subkeys gives kRegistryAccessDenied.
    virtual long DeleteKey(const std::wstring& path) = 0;
};

}  // namespace platform
