#include "platform/win32/Win32Registry.h"

#include <vector>

namespace platform::win32 {

namespace {

class Win32RegistryKey : public RegistryKey {
public:
    explicit Win32RegistryKey(UniqueHKey key) : key_(std::move(key)) {}

    long QueryValue(const std::wstring& name, uint32_t* type, void* data, uint32_t* size) override {
        DWORD valueType = 0;
        DWORD bytes = size ? *size : 0;
        LSTATUS result = RegQueryValueExW(key_.get(), name.c_str(), nullptr, &valueType, static_cast<BYTE*>(data),
                                          size ? &bytes : nullptr);
        if (type && (result == ERROR_SUCCESS || result == ERROR_MORE_DATA)) *type = valueType;
        if (size && (result == ERROR_SUCCESS || result == ERROR_MORE_DATA)) *size = bytes;
        return result;
    }

    long SetValue(const std::wstring& name, uint32_t type, const void* data, uint32_t size) override {
        return RegSetValueExW(key_.get(), name.c_str(), 0, type, static_cast<const BYTE*>(data), size);
    }

    long DeleteValue(const std::wstring& name) override { return RegDeleteValueW(key_.get(), name.c_str()); }

    long EnumValue(uint32_t index, uint32_t nameChars, std::wstring& name, uint32_t* type, void* data,
                   uint32_t* size) override {
        std::vector<wchar_t> buffer(nameChars ? nameChars : 1);
        DWORD chars = nameChars;
        DWORD valueType = 0;
        DWORD bytes = size ? *size : 0;
        LSTATUS result = RegEnumValueW(key_.get(), index, buffer.data(), &chars, nullptr, &valueType,
                                       static_cast<BYTE*>(data), size ? &bytes : nullptr);
        // With a name that fits and data that does not, the name is still delivered.
        bool named = result == ERROR_SUCCESS || (result == ERROR_MORE_DATA && chars < nameChars);
        if (named) {
            name.assign(buffer.data(), chars);
            if (type) *type = valueType;
            if (size) *size = bytes;
        }
        return result;
    }

    long EnumKeyName(uint32_t index, std::wstring& name) override {
        wchar_t buffer[256];
        DWORD chars = 256;
        LSTATUS result = RegEnumKeyExW(key_.get(), index, buffer, &chars, nullptr, nullptr, nullptr, nullptr);
        if (result == ERROR_SUCCESS) name.assign(buffer, chars);
        return result;
    }

private:
    UniqueHKey key_;
};

}  // namespace

long Win32Registry::CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) {
    HKEY handle = nullptr;
    LSTATUS result =
        RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle, nullptr);
    if (result == ERROR_SUCCESS) key = std::make_unique<Win32RegistryKey>(UniqueHKey(handle));
    return result;
}

long Win32Registry::OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) {
    HKEY handle = nullptr;
    LSTATUS result = RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_ALL_ACCESS, &handle);
    if (result == ERROR_SUCCESS) key = std::make_unique<Win32RegistryKey>(UniqueHKey(handle));
    return result;
}

long Win32Registry::DeleteKey(const std::wstring& path) {
    return RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
}

}  // namespace platform::win32
