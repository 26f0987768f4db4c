// The file system in memory, for tests: drives with trees of directories and files, names compared
// without case, paths resolved by the real API's rules, and the sharing rules of the C runtime.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace platform::fake {

class FakeFileSystem : public FileSystem {
public:
    // Starts with an empty drive C: as the current directory "C:\".
    FakeFileSystem();
    ~FakeFileSystem() override;

    uint32_t GetAttributes(const std::wstring& path) override;
    bool FindFirst(const std::wstring& pattern, FindStyle style, FindData& found) override;
    std::vector<FindData> FindAll(const std::wstring& pattern, FindStyle style) override;
    bool FullPathName(const std::wstring& path, size_t bufferChars, std::wstring& full) override;
    bool LongPathName(const std::wstring& path, std::wstring& longPath) override;
    bool ShortPathName(const std::wstring& path, std::wstring& shortPath) override;
    bool IsShellFolder(const std::wstring& path) override { return shellFolders_.count(path) != 0; }
    // A name-space path the shell knows as a folder.
    void AddShellFolder(const std::wstring& path) { shellFolders_.insert(path); }
    int CreateDirectoryTree(const std::wstring& path) override;
    int ShellVersion() override { return shellVersion_; }
    std::unique_ptr<File> Open(const std::wstring& path, FileAccess access, bool denyWrite) override;
    std::unique_ptr<File> OpenDenyAll(const std::wstring& path, FileAccess access, uint32_t& error) override;
    uint32_t Replace(const std::wstring& source, const std::wstring& target) override;
    uint32_t Delete(const std::wstring& path) override;
    uint32_t CopyWithoutReplacing(const std::wstring& source, const std::wstring& target) override;

    // Setting the scene. Paths follow the same rules as above; missing parents are created.
    void AddDrive(wchar_t letter);
    bool AddDirectory(const std::wstring& path);
    bool AddFile(const std::wstring& path, std::string_view bytes);
    bool AddFile(const std::wstring& path, const std::vector<uint8_t>& bytes);
    // Gives an entry an 8.3 name by which paths may reach it ("PROGRA~1").
    bool SetShortName(const std::wstring& path, const std::wstring& shortName);
    bool SetAttributes(const std::wstring& path, uint32_t attributes);
    void ChangeDirectory(const std::wstring& path);
    const std::wstring& currentDirectory() const { return currentDirectory_; }
    void SetShellVersion(int version) { shellVersion_ = version; }

    // Failures on demand. After this many more bytes every write stops short, as on a full disk.
    void FailWritesAfter(size_t bytes) { writeBudget_ = bytes; }
    // Every Replace fails with this system error code; 0 lets them work again.
    void FailReplaces(uint32_t error) { replaceError_ = error; }

    // What tests look at.
    bool ReadFile(const std::wstring& path, std::vector<uint8_t>& bytes);
    std::string FileText(const std::wstring& path);  // the bytes as they are; empty when absent
    FindStyle lastFindStyle() const { return lastFindStyle_; }
    int findCount() const { return findCount_; }

    struct Node;

private:
    std::set<std::wstring> shellFolders_;
    class OpenFile;
    std::shared_ptr<Node> Lookup(const std::wstring& path);
    bool ConvertNames(const std::wstring& path, bool toShort, std::wstring& converted);
    std::shared_ptr<Node> Add(const std::wstring& path, bool directory);
    std::shared_ptr<Node> FileToOpen(const std::wstring& path, bool create, uint32_t& error);
    int CreateOneDirectory(const std::wstring& path);
    std::vector<FindData> Find(const std::wstring& pattern, FindStyle style, bool firstOnly);
    std::shared_ptr<Node> ParentOf(const std::wstring& path, std::wstring& name);
    // How many of the bytes wanted may still be written.
    size_t TakeWriteBudget(size_t wanted);

    std::map<wchar_t, std::shared_ptr<Node>> drives_;  // by upper-case letter
    std::wstring currentDirectory_ = L"C:\\";
    int shellVersion_ = 1000;
    FindStyle lastFindStyle_ = FindStyle::Plain;
    int findCount_ = 0;
    std::optional<size_t> writeBudget_;
    uint32_t replaceError_ = 0;
};

}  // namespace platform::fake
