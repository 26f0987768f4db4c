#include "Registry.h"

#include <cstring>

#include "Handles.h"

namespace e2e::registry {
namespace {

UniqueKey Open(HKEY parent, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, path.c_str(), 0, access, &key) != ERROR_SUCCESS) key = nullptr;
    return UniqueKey(key);
}

UniqueKey Create(HKEY parent, const std::wstring& path) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS)
        key = nullptr;
    return UniqueKey(key);
}

// Stores exactly the given bytes. The system counts in a terminator the caller left out whenever one
// happens to follow the data in memory, so a string is stored from a copy that has none behind it.
void Write(HKEY key, const std::wstring& name, const Value& value) {
    std::vector<BYTE> bytes = value.data;
    bytes.insert(bytes.end(), {0xFF, 0xFF});
    RegSetValueExW(key, name.c_str(), 0, value.type, bytes.data(), static_cast<DWORD>(value.data.size()));
}

// A buffer of exactly the stored size: with room to spare, Wine adds a terminator the value never had.
std::optional<Value> Read(HKEY key, const std::wstring& name) {
    Value value;
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, &value.type, nullptr, &size) != ERROR_SUCCESS) return std::nullopt;
    value.data.resize(size);
    if (RegQueryValueExW(key, name.c_str(), nullptr, &value.type, value.data.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    value.data.resize(size);
    return value;
}

std::optional<Value> Read(const std::wstring& path, const std::wstring& name) {
    UniqueKey key = Open(HKEY_CURRENT_USER, path, KEY_QUERY_VALUE);
    return key ? Read(key.get(), name) : std::nullopt;
}

ScopedKey::Snapshot Save(HKEY key) {
    ScopedKey::Snapshot snapshot;
    DWORD valueCount = 0, maxName = 0, subkeyCount = 0, maxSubkey = 0;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subkeyCount, &maxSubkey, nullptr, &valueCount, &maxName, nullptr,
                     nullptr, nullptr);
    for (DWORD i = 0; i < valueCount; ++i) {
        std::wstring name(maxName + 1, L'\0');
        DWORD nameLength = maxName + 1;
        if (RegEnumValueW(key, i, name.data(), &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            continue;
        name.resize(nameLength);
        if (std::optional<Value> value = Read(key, name)) snapshot.values.emplace_back(std::move(name), *value);
    }
    for (DWORD i = 0; i < subkeyCount; ++i) {
        std::wstring name(maxSubkey + 1, L'\0');
        DWORD nameLength = maxSubkey + 1;
        if (RegEnumKeyExW(key, i, name.data(), &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            continue;
        name.resize(nameLength);
        if (UniqueKey child = Open(key, name, KEY_READ)) snapshot.subkeys.emplace_back(name, Save(child.get()));
    }
    return snapshot;
}

void Restore(HKEY key, const ScopedKey::Snapshot& snapshot) {
    for (const auto& [name, value] : snapshot.values) Write(key, name, value);
    for (const auto& [name, child] : snapshot.subkeys)
        if (UniqueKey created = Create(key, name)) Restore(created.get(), child);
}

void Write(const std::wstring& path, const std::wstring& name, const Value& value) {
    if (UniqueKey key = Create(HKEY_CURRENT_USER, path)) Write(key.get(), name, value);
}

}  // namespace

void DeleteKey(const std::wstring& path) {
    RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());
    RegDeleteKeyW(HKEY_CURRENT_USER, path.c_str());
}

void DeleteValue(const std::wstring& path, const std::wstring& name) {
    if (UniqueKey key = Open(HKEY_CURRENT_USER, path, KEY_SET_VALUE)) RegDeleteValueW(key.get(), name.c_str());
}

std::optional<DWORD> ReadDword(const std::wstring& path, const std::wstring& name) {
    std::optional<Value> value = Read(path, name);
    if (!value || value->type != REG_DWORD || value->data.size() != sizeof(DWORD)) return std::nullopt;
    DWORD number = 0;
    memcpy(&number, value->data.data(), sizeof number);
    return number;
}

std::optional<std::wstring> ReadString(const std::wstring& path, const std::wstring& name) {
    std::optional<Value> value = Read(path, name);
    if (!value || (value->type != REG_SZ && value->type != REG_EXPAND_SZ)) return std::nullopt;
    std::wstring text(value->data.size() / sizeof(wchar_t), L'\0');
    memcpy(text.data(), value->data.data(), text.size() * sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0') text.pop_back();
    return text;
}

void WriteDword(const std::wstring& path, const std::wstring& name, DWORD number) {
    const auto* bytes = reinterpret_cast<const BYTE*>(&number);
    Write(path, name, Value{REG_DWORD, std::vector<BYTE>(bytes, bytes + sizeof number)});
}

void WriteString(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
    const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
    Write(path, name, Value{REG_SZ, std::vector<BYTE>(bytes, bytes + (text.size() + 1) * sizeof(wchar_t))});
}

ScopedKey::ScopedKey(std::wstring path) : path_(std::move(path)) {
    if (UniqueKey key = Open(HKEY_CURRENT_USER, path_, KEY_READ)) saved_ = Save(key.get());
}

ScopedKey::~ScopedKey() {
    DeleteKey(path_);
    if (!saved_) return;
    if (UniqueKey key = Create(HKEY_CURRENT_USER, path_)) Restore(key.get(), *saved_);
}

}  // namespace e2e::registry
