#include "platform/win32/Win32FileSystem.h"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <shlobj.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace platform::win32 {

namespace {

// A descriptor of the C runtime, closed with the object.
class CrtFile : public File {
public:
    explicit CrtFile(int descriptor) : descriptor_(descriptor) {}
    ~CrtFile() override { _close(descriptor_); }

    size_t Read(void* data, size_t size) override { return Transfer(data, size, false); }
    size_t Write(const void* data, size_t size) override { return Transfer(const_cast<void*>(data), size, true); }
    uint64_t Size() override {
        long long length = _filelengthi64(descriptor_);
        return length < 0 ? 0 : static_cast<uint64_t>(length);
    }
    bool Flush() override { return _commit(descriptor_) == 0; }

private:
    // _read and _write take an unsigned int count; larger transfers go in pieces.
    size_t Transfer(void* data, size_t size, bool write) {
        auto* bytes = static_cast<char*>(data);
        size_t done = 0;
        while (done < size) {
            unsigned piece = static_cast<unsigned>(std::min<size_t>(size - done, 1u << 30));
            int moved = write ? _write(descriptor_, bytes + done, piece) : _read(descriptor_, bytes + done, piece);
            if (moved <= 0) break;
            done += static_cast<size_t>(moved);
        }
        return done;
    }

    int descriptor_;
};

// A buffered stream of the C runtime, closed with the object.
class StreamFile : public File {
public:
    explicit StreamFile(FILE* stream) : stream_(stream) {}
    ~StreamFile() override { fclose(stream_); }

    size_t Read(void* data, size_t size) override { return fread(data, 1, size, stream_); }
    size_t Write(const void* data, size_t size) override { return fwrite(data, 1, size, stream_); }
    uint64_t Size() override {
        fflush(stream_);
        long long length = _filelengthi64(_fileno(stream_));
        return length < 0 ? 0 : static_cast<uint64_t>(length);
    }
    bool Flush() override { return fflush(stream_) == 0 && _commit(_fileno(stream_)) == 0; }

private:
    FILE* stream_;
};

FindData ToFindData(const WIN32_FIND_DATAW& data) {
    FindData found;
    found.attributes = data.dwFileAttributes;
    found.size = (static_cast<uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    found.name = data.cFileName;
    return found;
}

UniqueFindHandle StartFind(const std::wstring& pattern, FindStyle style, WIN32_FIND_DATAW& data) {
    if (style == FindStyle::Plain) return UniqueFindHandle(FindFirstFileW(pattern.c_str(), &data));
    return UniqueFindHandle(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
}

int ReadShellVersion() {
    DWORD ignored = 0;
    DWORD size = GetFileVersionInfoSizeW(L"shell32.dll", &ignored);
    if (size == 0) return 0;
    std::vector<BYTE> block(size);
    if (!GetFileVersionInfoW(L"shell32.dll", 0, size, block.data())) return 0;
    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &length) || !info) return 0;
    return HIWORD(info->dwFileVersionMS) * 100 + LOWORD(info->dwFileVersionMS);
}

}  // namespace

uint32_t Win32FileSystem::GetAttributes(const std::wstring& path) {
    return GetFileAttributesW(path.c_str());
}

bool Win32FileSystem::FindFirst(const std::wstring& pattern, FindStyle style, FindData& found) {
    WIN32_FIND_DATAW data;
    UniqueFindHandle handle = StartFind(pattern, style, data);
    if (!handle.valid()) return false;
    found = ToFindData(data);
    return true;
}

std::vector<FindData> Win32FileSystem::FindAll(const std::wstring& pattern, FindStyle style) {
    std::vector<FindData> found;
    WIN32_FIND_DATAW data;
    UniqueFindHandle handle = StartFind(pattern, style, data);
    if (!handle.valid()) return found;
    do {
        found.push_back(ToFindData(data));
    } while (FindNextFileW(handle.get(), &data));
    return found;
}

bool Win32FileSystem::FullPathName(const std::wstring& path, size_t bufferChars, std::wstring& full) {
    std::vector<wchar_t> buffer(bufferChars ? bufferChars : 1);
    DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(bufferChars), buffer.data(), nullptr);
    if (length == 0 || length >= bufferChars) return false;
    full.assign(buffer.data(), length);
    return true;
}

namespace {

// GetLongPathNameW and GetShortPathNameW alike: grows the buffer until the result fits.
bool ConvertPathName(DWORD(WINAPI* convert)(LPCWSTR, LPWSTR, DWORD), const std::wstring& path,
                     std::wstring& converted) {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        DWORD length = convert(path.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) return false;
        if (length < buffer.size()) {
            converted.assign(buffer.data(), length);
            return true;
        }
        buffer.resize(length);
    }
}

}  // namespace

bool Win32FileSystem::LongPathName(const std::wstring& path, std::wstring& longPath) {
    return ConvertPathName(GetLongPathNameW, path, longPath);
}

bool Win32FileSystem::IsShellFolder(const std::wstring& path) {
    PIDLIST_ABSOLUTE item = ILCreateFromPathW(path.c_str());
    if (!item) return false;
    IShellFolder* parent = nullptr;
    PCUITEMID_CHILD child = nullptr;
    SFGAOF attributes = SFGAO_FOLDER;
    bool folder = false;
    if (SUCCEEDED(SHBindToParent(item, IID_IShellFolder, reinterpret_cast<void**>(&parent), &child))) {
        folder = SUCCEEDED(parent->GetAttributesOf(1, &child, &attributes)) && (attributes & SFGAO_FOLDER);
        parent->Release();
    }
    ILFree(item);
    return folder;
}

bool Win32FileSystem::ShortPathName(const std::wstring& path, std::wstring& shortPath) {
    return ConvertPathName(GetShortPathNameW, path, shortPath);
}

int Win32FileSystem::CreateDirectoryTree(const std::wstring& path) {
    return SHCreateDirectory(nullptr, path.c_str());
}

int Win32FileSystem::ShellVersion() {
    static const int version = ReadShellVersion();
    return version;
}

std::unique_ptr<File> Win32FileSystem::Open(const std::wstring& path, FileAccess access, bool denyWrite) {
    int flags = _O_BINARY;
    switch (access) {
        case FileAccess::Read:
            flags |= _O_RDONLY | _O_SEQUENTIAL;
            break;
        case FileAccess::Write:
            flags |= _O_WRONLY | _O_CREAT | _O_TRUNC;
            break;
        case FileAccess::Append:
            flags |= _O_WRONLY | _O_CREAT | _O_APPEND;
            break;
    }
    int descriptor = -1;
    if (_wsopen_s(&descriptor, path.c_str(), flags, denyWrite ? _SH_DENYWR : _SH_DENYNO, _S_IREAD | _S_IWRITE) != 0)
        return nullptr;
    return std::make_unique<CrtFile>(descriptor);
}

std::unique_ptr<File> Win32FileSystem::OpenDenyAll(const std::wstring& path, FileAccess access, uint32_t& error) {
    // "S": the cache is tuned for reading or writing straight through.
    const wchar_t* mode = access == FileAccess::Read ? L"rbS" : access == FileAccess::Write ? L"wbS" : L"ab+S";
    // The runtime turns some calls down without asking the system; those must not report an old error.
    SetLastError(0);
    FILE* stream = _wfsopen(path.c_str(), mode, _SH_DENYRW);
    if (!stream) {
        error = GetLastError();
        return nullptr;
    }
    error = 0;
    return std::make_unique<StreamFile>(stream);
}

uint32_t Win32FileSystem::Replace(const std::wstring& source, const std::wstring& target) {
    // Windows refuses to replace a read-only file; Wine 8 replaces it. A read-only file is the
    // user's word that it stays as it is, so it is refused here on both.
    DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) return ERROR_ACCESS_DENIED;
    // A rename within one directory: the target is never missing or half there. Wine ignores
    // MOVEFILE_WRITE_THROUGH, which is why the writer flushes the source first.
    if (MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return 0;
    return GetLastError();
}

uint32_t Win32FileSystem::Delete(const std::wstring& path) {
    return DeleteFileW(path.c_str()) ? 0 : GetLastError();
}

uint32_t Win32FileSystem::CopyWithoutReplacing(const std::wstring& source, const std::wstring& target) {
    return CopyFileW(source.c_str(), target.c_str(), TRUE) ? 0 : GetLastError();
}

}  // namespace platform::win32
