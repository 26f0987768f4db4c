// Files and directories, with the Windows rules the program leans on.
// Paths take "\" or "/" between names and are resolved as the real API does: relative to the
// current directory, "." and ".." folded, trailing dots (and, in the last name, blanks) dropped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

constexpr uint32_t kInvalidAttributes = 0xFFFFFFFF;  // INVALID_FILE_ATTRIBUTES

enum FileAttribute : uint32_t {
    kAttributeReadOnly = 0x1,
    kAttributeHidden = 0x2,
    kAttributeSystem = 0x4,
    kAttributeDirectory = 0x10,
    kAttributeArchive = 0x20,
    kAttributeNormal = 0x80,
};

struct FindData {
    uint32_t attributes = 0;
    uint64_t size = 0;
    std::wstring name;
};

// FindFirstFileW, or FindFirstFileExW with basic information and the large-fetch flag.
enum class FindStyle { Plain, BasicLargeFetch };

// The C runtime's binary open modes: "rb", "wb", "ab".
enum class FileAccess { Read, Write, Append };

// An open file. Destroying it closes it.
class File {
public:
    File() = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    virtual ~File() = default;

    // Bytes read; 0 at the end of the file or on failure.
    virtual size_t Read(void* data, size_t size) = 0;
    // Bytes written.
    virtual size_t Write(const void* data, size_t size) = 0;
    // Length of the whole file in bytes.
    virtual uint64_t Size() = 0;
    // Pushes what was written through the system's caches onto the disk; false when the system
    // reports that it could not (a full disk may only show here).
    virtual bool Flush() = 0;
};

class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    // As GetFileAttributesW: kInvalidAttributes when the path does not exist.
    virtual uint32_t GetAttributes(const std::wstring& path) = 0;
    // The first entry matching a path or a pattern with "*" and "?" in its last name; false when
    // there is none. A pattern ending in a separator, and a drive root, match nothing.
    virtual bool FindFirst(const std::wstring& pattern, FindStyle style, FindData& found) = 0;
    // Every entry FindFirstFileW and FindNextFileW give, "." and ".." included where the directory
    // has them; the order is the file system's own.
    virtual std::vector<FindData> FindAll(const std::wstring& pattern, FindStyle style) = 0;
    // As GetFullPathNameW into a buffer of bufferChars characters (terminator included):
    // false when the path cannot be resolved or the result does not fit.
    virtual bool FullPathName(const std::wstring& path, size_t bufferChars, std::wstring& full) = 0;
    // As GetLongPathNameW: short (8.3) names on the path become long ones, the rest of the text
    // stays as given; false when the path does not exist.
    virtual bool LongPathName(const std::wstring& path, std::wstring& longPath) = 0;
    // As GetShortPathNameW: names that have an 8.3 form take it, the others stay; false when the
    // path does not exist.
    virtual bool ShortPathName(const std::wstring& path, std::wstring& shortPath) = 0;
    // A path of the shell's name space ("::{...}"): true when its parent folder says it is a folder.
    virtual bool IsShellFolder(const std::wstring& path) = 0;
    // As SHCreateDirectory: creates the directory and every missing parent; returns its Win32 code:
    // 0 created, 183 already there (a file too), 161 a relative path, 3 a parent is a file.
    virtual int CreateDirectoryTree(const std::wstring& path) = 0;
    // Version of "shell32.dll" as major * 100 + minor.
    virtual int ShellVersion() = 0;
    // Opens a file in binary mode as _wsopen_s does: Read needs the file, Write creates or
    // empties it, Append creates it or writes at its end. denyWrite refuses other writers while
    // it stays open (and cannot be had while another writer holds the file).
    // Null when the file cannot be opened.
    virtual std::unique_ptr<File> Open(const std::wstring& path, FileAccess access, bool denyWrite) = 0;
    // As _wfsopen with share mode _SH_DENYRW, in mode "rb", "wb" or "ab+" for Read, Write and Append
    // (Append may read as well): no other handle may be open on the file, and none can be opened while
    // this one is. Null when the file cannot be opened, with the system's error code in error (0 when
    // the runtime refused the call without asking the system).
    virtual std::unique_ptr<File> OpenDenyAll(const std::wstring& path, FileAccess access, uint32_t& error) = 0;
    // As MoveFileExW with MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH: the file at source takes
    // the name target in one step, replacing a file of that name. Both lie on the same volume.
    // Returns 0, or the system's error code: the target is read-only, a directory or open elsewhere.
    virtual uint32_t Replace(const std::wstring& source, const std::wstring& target) = 0;
    // As DeleteFileW: 0, or the system's error code.
    virtual uint32_t Delete(const std::wstring& path) = 0;
    // As CopyFileW with fail-if-exists set: a file already at target stays as it is. Returns 0, or
    // the system's error code (80 when target exists).
    virtual uint32_t CopyWithoutReplacing(const std::wstring& source, const std::wstring& target) = 0;
};

}  // namespace platform
