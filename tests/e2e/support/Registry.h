// The registry of the current user as the end-to-end tests see and prepare it. Paths are below HKEY_CURRENT_USER.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace e2e::registry {

// The option dialog's own values, and the host's sections as the first host reads them.
inline constexpr wchar_t kOptionPage[] = L"Software\\Tarnwick\\Qor\\Command\\Option\\OptionPage";
inline constexpr wchar_t kSettings[] = L"Software\\Tarnwick\\Qor\\Main001\\Settings";
inline constexpr wchar_t kAppInfo[] = L"Software\\Tarnwick\\Qor\\Main001\\AppInfo";

struct Value {
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
};

// Removes the key with everything below it; a missing key is no error.
void DeleteKey(const std::wstring& path);
void DeleteValue(const std::wstring& path, const std::wstring& name);

// A REG_DWORD; nullopt when absent or of another type.
std::optional<DWORD> ReadDword(const std::wstring& path, const std::wstring& name);
// A REG_SZ or REG_EXPAND_SZ with any terminating zeros dropped (written with or without them).
std::optional<std::wstring> ReadString(const std::wstring& path, const std::wstring& name);

// Each creates the key when it is missing.
void WriteDword(const std::wstring& path, const std::wstring& name, DWORD value);
void WriteString(const std::wstring& path, const std::wstring& name, const std::wstring& value);

// Puts a key with everything below it back as it was (or away) when the scope ends.
class ScopedKey {
public:
    explicit ScopedKey(std::wstring path);
    ScopedKey(const ScopedKey&) = delete;
    ScopedKey& operator=(const ScopedKey&) = delete;
    ~ScopedKey();

    struct Snapshot {
        std::vector<std::pair<std::wstring, Value>> values;
        std::vector<std::pair<std::wstring, Snapshot>> subkeys;
    };

private:
    std::wstring path_;
    std::optional<Snapshot> saved_;
};

}  // namespace e2e::registry
