#include "Files.h"

#include <windows.h>

namespace e2e {

std::string ReadFileBytes(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    bytes.resize(read);
    return bytes;
}

bool WriteFileBytes(const std::wstring& path, const std::string& bytes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool ok =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size();
    CloseHandle(file);
    return ok;
}

std::wstring ReadUtf16File(const std::wstring& path) {
    const std::string bytes = ReadFileBytes(path);
    return std::wstring(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
}

bool WriteUtf16File(const std::wstring& path, const std::wstring& text) {
    return WriteFileBytes(path, std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)));
}

std::string Utf8(const std::wstring& text) {
    int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string out(size > 0 ? size - 1 : 0, '\0');
    if (size > 1) WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, out.data(), size, nullptr, nullptr);
    return out;
}

ScopedFile::ScopedFile(std::wstring path) : path_(std::move(path)) {
    if (GetFileAttributesW(path_.c_str()) != INVALID_FILE_ATTRIBUTES) saved_ = ReadFileBytes(path_);
    DeleteFileW(path_.c_str());
}

ScopedFile::~ScopedFile() {
    DeleteFileW(path_.c_str());
    if (saved_) WriteFileBytes(path_, *saved_);
}

namespace {

std::set<std::wstring> FilesIn(const std::wstring& folder) {
    std::set<std::wstring> names;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) names.insert(found.cFileName);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

}  // namespace

ScopedNewFiles::ScopedNewFiles(std::wstring folder) : folder_(std::move(folder)), before_(FilesIn(folder_)) {}

ScopedNewFiles::~ScopedNewFiles() {
    for (const std::wstring& name : FilesIn(folder_))
        if (!before_.count(name)) DeleteFileW((folder_ + L"\\" + name).c_str());
}

}  // namespace e2e
