// Files and directories through the Win32 API and the C runtime.
#pragma once

#include <windows.h>

#include "platform/FileSystem.h"

namespace platform::win32 {

// Owns a search handle of FindFirstFileW and closes it.
class UniqueFindHandle {
public:
    explicit UniqueFindHandle(HANDLE handle) : handle_(handle) {}
    UniqueFindHandle(UniqueFindHandle&& other) noexcept : handle_(other.handle_) {
        other.handle_ = INVALID_HANDLE_VALUE;
    }
    UniqueFindHandle& operator=(UniqueFindHandle&&) = delete;
    UniqueFindHandle(const UniqueFindHandle&) = delete;
    UniqueFindHandle& operator=(const UniqueFindHandle&) = delete;
    ~UniqueFindHandle() {
        if (valid()) FindClose(handle_);
    }

    HANDLE get() const { return handle_; }
    bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle_;
};

class Win32FileSystem : public FileSystem {
public:
    uint32_t GetAttributes(const std::wstring& path) override;
    bool FindFirst(const std::wstring& pattern, FindStyle style, FindData& found) override;
    std::vector<FindData> FindAll(const std::wstring& pattern, FindStyle style) override;
    bool FullPathName(const std::wstring& path, size_t bufferChars, std::wstring& full) override;
    bool LongPathName(const std::wstring& path, std::wstring& longPath) override;
    bool ShortPathName(const std::wstring& path, std::wstring& shortPath) override;
    bool IsShellFolder(const std::wstring& path) override;
    int CreateDirectoryTree(const std::wstring& path) override;
    int ShellVersion() override;
    std::unique_ptr<File> Open(const std::wstring& path, FileAccess access, bool denyWrite) override;
    std::unique_ptr<File> OpenDenyAll(const std::wstring& path, FileAccess access, uint32_t& error) override;
    uint32_t Replace(const std::wstring& source, const std::wstring& target) override;
    uint32_t Delete(const std::wstring& path) override;
    uint32_t CopyWithoutReplacing(const std::wstring& source, const std::wstring& target) override;
};

}  // namespace platform::win32
