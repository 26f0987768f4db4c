#include "platform/fake/FakeFileSystem.h"

#include <algorithm>
#include <cstring>

#include "platform/fake/CaseFold.h"

namespace platform::fake {

namespace {

constexpr int kErrorFileNotFound = 2;
constexpr int kErrorPathNotFound = 3;
constexpr int kErrorAccessDenied = 5;
constexpr int kErrorSharingViolation = 32;
constexpr int kErrorFileExists = 80;
constexpr int kErrorInvalidName = 123;
constexpr int kErrorBadPathname = 161;
constexpr int kErrorAlreadyExists = 183;
constexpr int kErrorFilenameTooLong = 206;
constexpr size_t kMaxPath = 260;

bool IsSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

bool HasDrive(std::wstring_view path) {
    return path.size() >= 2 && path[1] == L':' &&
           ((path[0] >= L'A' && path[0] <= L'Z') || (path[0] >= L'a' && path[0] <= L'z'));
}

bool IsVerbatim(std::wstring_view path) {
    return path.substr(0, 4) == L"\\\\?\\";
}

bool HasInvalidCharacter(std::wstring_view name) {
    return name.find_first_of(L"<>:\"|?*") != std::wstring_view::npos;
}

// A full path taken apart: "C:" or "\\server\share", then the names below it.
struct PathParts {
    std::wstring root;
    std::vector<std::wstring> names;
    bool trailingSeparator = false;
    bool verbatim = false;
};

std::vector<std::wstring> SplitNames(std::wstring_view text, bool anySeparator) {
    std::vector<std::wstring> names;
    size_t start = 0;
    for (size_t i = 0; i <= text.size(); ++i) {
        bool separator = i < text.size() && (text[i] == L'\\' || (anySeparator && text[i] == L'/'));
        if (i == text.size() || separator) {
            if (i > start) names.emplace_back(text.substr(start, i - start));
            start = i + 1;
        }
    }
    return names;
}

// Makes a path absolute against the current directory, with "\" throughout.
std::wstring Absolute(std::wstring path, const std::wstring& current) {
    std::replace(path.begin(), path.end(), L'/', L'\\');
    if (path.substr(0, 2) == L"\\\\") return path;
    if (HasDrive(path)) {
        if (path.size() >= 3 && path[2] == L'\\') return path;
        bool sameDrive = HasDrive(current) && UpperCase(current[0]) == UpperCase(path[0]);
        std::wstring base = sameDrive ? current : path.substr(0, 2) + L"\\";
        return base + L"\\" + path.substr(2);
    }
    if (path[0] == L'\\') return current.substr(0, 2) + path;
    return current + L"\\" + path;
}

// The real rules: "." and ".." fold, empty names vanish, trailing dots go from every name and
// trailing blanks from the last one.
bool Resolve(const std::wstring& path, const std::wstring& current, PathParts& parts) {
    if (path.empty()) return false;
    if (IsVerbatim(path)) {
        std::wstring_view rest = std::wstring_view(path).substr(4);
        if (!HasDrive(rest)) return false;
        parts.verbatim = true;
        parts.root = std::wstring(rest.substr(0, 2));
        parts.names = SplitNames(rest.substr(2), false);
        return true;
    }
    std::wstring absolute = Absolute(path, current);
    size_t rootEnd = 2;
    if (absolute.substr(0, 2) == L"\\\\") {
        size_t server = absolute.find(L'\\', 2);
        if (server == std::wstring::npos || server == 2) return false;
        rootEnd = absolute.find(L'\\', server + 1);
        if (rootEnd == server + 1) return false;
        if (rootEnd == std::wstring::npos) rootEnd = absolute.size();
    }
    parts.root = absolute.substr(0, rootEnd);
    parts.trailingSeparator = absolute.back() == L'\\';
    std::vector<std::wstring> raw = SplitNames(std::wstring_view(absolute).substr(rootEnd), false);
    for (size_t i = 0; i < raw.size(); ++i) {
        std::wstring& name = raw[i];
        if (name == L".") continue;
        if (name == L"..") {
            if (!parts.names.empty()) parts.names.pop_back();
            continue;
        }
        const wchar_t* trimmed = i + 1 == raw.size() ? L". " : L".";
        size_t keep = name.find_last_not_of(trimmed);
        name.erase(keep == std::wstring::npos ? 0 : keep + 1);
        if (!name.empty()) parts.names.push_back(name);
    }
    return true;
}

std::wstring Join(const PathParts& parts) {
    std::wstring text = parts.verbatim ? L"\\\\?\\" + parts.root : parts.root;
    text += L'\\';
    for (size_t i = 0; i < parts.names.size(); ++i) {
        if (i) text += L'\\';
        text += parts.names[i];
    }
    if (parts.trailingSeparator && !parts.names.empty()) text += L'\\';
    return text;
}

bool MatchesWildcard(std::wstring_view pattern, std::wstring_view name) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == L'*') {
        for (size_t skip = 0; skip <= name.size(); ++skip)
            if (MatchesWildcard(pattern.substr(1), name.substr(skip))) return true;
        return false;
    }
    if (name.empty()) return false;
    if (pattern[0] != L'?' && UpperCase(pattern[0]) != UpperCase(name[0])) return false;
    return MatchesWildcard(pattern.substr(1), name.substr(1));
}

}  // namespace

struct FakeFileSystem::Node {
    std::wstring name;
    std::wstring shortName;
    uint32_t attributes = kAttributeArchive;
    std::vector<uint8_t> bytes;
    std::vector<std::shared_ptr<Node>> children;  // sorted by upper-cased name
    Node* parent = nullptr;
    int writers = 0;
    int denyWriters = 0;
    int handles = 0;
    int denyAll = 0;

    bool IsDirectory() const { return (attributes & kAttributeDirectory) != 0; }

    std::shared_ptr<Node> Child(std::wstring_view wanted) const {
        for (const auto& child : children)
            if (EqualNoCase(child->name, wanted) ||
                (!child->shortName.empty() && EqualNoCase(child->shortName, wanted)))
                return child;
        return nullptr;
    }

    std::shared_ptr<Node> AddChild(const std::wstring& childName, bool directory) {
        auto child = std::make_shared<Node>();
        child->name = childName;
        child->attributes = directory ? kAttributeDirectory : kAttributeArchive;
        Insert(child);
        return child;
    }

    void Insert(const std::shared_ptr<Node>& child) {
        child->parent = this;
        auto at = std::lower_bound(children.begin(), children.end(), child->name,
                                   [](const std::shared_ptr<Node>& node, const std::wstring& wanted) {
                                       return CompareNoCase(node->name, wanted) < 0;
                                   });
        children.insert(at, child);
    }

    void Remove(const Node* child) {
        std::erase_if(children, [child](const std::shared_ptr<Node>& node) { return node.get() == child; });
    }
};

namespace {

// How a handle shares its file with others.
enum class Sharing { All, DenyWrite, DenyAll };

}  // namespace

// An open file: reads and writes go straight to the node, which outlives the handle.
class FakeFileSystem::OpenFile : public File {
public:
    OpenFile(FakeFileSystem& owner, std::shared_ptr<Node> node, FileAccess access, Sharing sharing)
        : owner_(owner), node_(std::move(node)), access_(access), sharing_(sharing) {
        Count(1);
    }
    ~OpenFile() override { Count(-1); }

    size_t Read(void* data, size_t size) override {
        const bool readable =
            access_ == FileAccess::Read || (access_ == FileAccess::Append && sharing_ == Sharing::DenyAll);
        if (!readable || position_ >= node_->bytes.size()) return 0;
        size_t count = std::min(size, node_->bytes.size() - position_);
        std::memcpy(data, node_->bytes.data() + position_, count);
        position_ += count;
        return count;
    }

    size_t Write(const void* data, size_t size) override {
        if (access_ == FileAccess::Read) return 0;
        std::vector<uint8_t>& bytes = node_->bytes;
        if (access_ == FileAccess::Append) position_ = bytes.size();
        size = owner_.TakeWriteBudget(size);
        if (bytes.size() < position_ + size) bytes.resize(position_ + size);
        if (size) std::memcpy(bytes.data() + position_, data, size);
        position_ += size;
        return size;
    }

    uint64_t Size() override { return node_->bytes.size(); }
    bool Flush() override { return true; }

private:
    void Count(int step) {
        node_->handles += step;
        if (access_ != FileAccess::Read) node_->writers += step;
        if (sharing_ == Sharing::DenyWrite) node_->denyWriters += step;
        if (sharing_ == Sharing::DenyAll) node_->denyAll += step;
    }

    FakeFileSystem& owner_;
    std::shared_ptr<Node> node_;
    FileAccess access_;
    Sharing sharing_;
    size_t position_ = 0;
};

FakeFileSystem::FakeFileSystem() {
    AddDrive(L'C');
}

FakeFileSystem::~FakeFileSystem() = default;

void FakeFileSystem::AddDrive(wchar_t letter) {
    auto& root = drives_[UpperCase(letter)];
    if (root) return;
    root = std::make_shared<Node>();
    root->attributes = kAttributeDirectory;
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::Lookup(const std::wstring& path) {
    PathParts parts;
    if (!Resolve(path, currentDirectory_, parts) || parts.root.size() != 2) return nullptr;
    auto drive = drives_.find(UpperCase(parts.root[0]));
    if (drive == drives_.end()) return nullptr;
    std::shared_ptr<Node> node = drive->second;
    for (const std::wstring& name : parts.names) {
        if (!node->IsDirectory()) return nullptr;
        node = node->Child(name);
        if (!node) return nullptr;
    }
    return node;
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::Add(const std::wstring& path, bool directory) {
    PathParts parts;
    if (!Resolve(path, currentDirectory_, parts) || parts.root.size() != 2 || parts.names.empty()) return nullptr;
    AddDrive(parts.root[0]);
    std::shared_ptr<Node> node = drives_[UpperCase(parts.root[0])];
    for (size_t i = 0; i < parts.names.size(); ++i) {
        bool last = i + 1 == parts.names.size();
        std::shared_ptr<Node> next = node->Child(parts.names[i]);
        if (!next) next = node->AddChild(parts.names[i], directory || !last);
        if (next->IsDirectory() != (directory || !last)) return nullptr;
        node = next;
    }
    return node;
}

bool FakeFileSystem::AddDirectory(const std::wstring& path) {
    return Add(path, true) != nullptr;
}

bool FakeFileSystem::AddFile(const std::wstring& path, std::string_view bytes) {
    return AddFile(path, std::vector<uint8_t>(bytes.begin(), bytes.end()));
}

bool FakeFileSystem::AddFile(const std::wstring& path, const std::vector<uint8_t>& bytes) {
    std::shared_ptr<Node> node = Add(path, false);
    if (!node) return false;
    node->bytes = bytes;
    return true;
}

bool FakeFileSystem::SetShortName(const std::wstring& path, const std::wstring& shortName) {
    std::shared_ptr<Node> node = Lookup(path);
    if (!node || !node->parent) return false;
    node->shortName = shortName;
    return true;
}

bool FakeFileSystem::SetAttributes(const std::wstring& path, uint32_t attributes) {
    std::shared_ptr<Node> node = Lookup(path);
    if (!node) return false;
    node->attributes = (node->attributes & kAttributeDirectory) | (attributes & ~kAttributeDirectory);
    return true;
}

void FakeFileSystem::ChangeDirectory(const std::wstring& path) {
    PathParts parts;
    if (Resolve(path, currentDirectory_, parts)) {
        parts.trailingSeparator = false;
        currentDirectory_ = Join(parts);
    }
}

bool FakeFileSystem::ReadFile(const std::wstring& path, std::vector<uint8_t>& bytes) {
    std::shared_ptr<Node> node = Lookup(path);
    if (!node || node->IsDirectory()) return false;
    bytes = node->bytes;
    return true;
}

std::string FakeFileSystem::FileText(const std::wstring& path) {
    std::vector<uint8_t> bytes;
    ReadFile(path, bytes);
    return std::string(bytes.begin(), bytes.end());
}

uint32_t FakeFileSystem::GetAttributes(const std::wstring& path) {
    std::shared_ptr<Node> node = Lookup(path);
    return node ? node->attributes : kInvalidAttributes;
}

std::vector<FindData> FakeFileSystem::Find(const std::wstring& pattern, FindStyle style, bool firstOnly) {
    lastFindStyle_ = style;
    ++findCount_;
    std::vector<FindData> found;
    if (pattern.empty() || IsSeparator(pattern.back())) return found;
    PathParts parts;
    if (!Resolve(pattern, currentDirectory_, parts) || parts.names.empty()) return found;
    std::wstring wanted = parts.names.back();
    parts.names.pop_back();
    parts.trailingSeparator = false;
    std::shared_ptr<Node> directory = Lookup(Join(parts));
    if (!directory || !directory->IsDirectory()) return found;
    auto add = [&](const std::wstring& name, uint32_t attributes, uint64_t size) {
        found.push_back(FindData{attributes, size, name});
    };
    if (directory->parent) {
        for (const wchar_t* dots : {L".", L".."})
            if (MatchesWildcard(wanted, dots)) add(dots, kAttributeDirectory, 0);
    }
    for (const auto& child : directory->children) {
        if (firstOnly && !found.empty()) break;
        bool matches = MatchesWildcard(wanted, child->name) ||
                       (!child->shortName.empty() && MatchesWildcard(wanted, child->shortName));
        if (matches) add(child->name, child->attributes, child->bytes.size());
    }
    return found;
}

bool FakeFileSystem::FindFirst(const std::wstring& pattern, FindStyle style, FindData& found) {
    std::vector<FindData> all = Find(pattern, style, true);
    if (all.empty()) return false;
    found = all.front();
    return true;
}

std::vector<FindData> FakeFileSystem::FindAll(const std::wstring& pattern, FindStyle style) {
    return Find(pattern, style, false);
}

bool FakeFileSystem::FullPathName(const std::wstring& path, size_t bufferChars, std::wstring& full) {
    PathParts parts;
    if (!Resolve(path, currentDirectory_, parts)) return false;
    std::wstring text = Join(parts);
    if (text.size() + 1 > bufferChars) return false;
    full = text;
    return true;
}

bool FakeFileSystem::LongPathName(const std::wstring& path, std::wstring& longPath) {
    return ConvertNames(path, false, longPath);
}

bool FakeFileSystem::ShortPathName(const std::wstring& path, std::wstring& shortPath) {
    return ConvertNames(path, true, shortPath);
}

// Walks the text name by name so that everything but the names converted stays as the caller wrote
// it: toShort puts in each 8.3 name there is, otherwise short names become long ones.
bool FakeFileSystem::ConvertNames(const std::wstring& path, bool toShort, std::wstring& converted) {
    std::wstring_view text = path;
    std::wstring result;
    if (IsVerbatim(text)) {
        result = L"\\\\?\\";
        text.remove_prefix(4);
    }
    std::shared_ptr<Node> node;
    size_t start = 0;
    if (HasDrive(text) && text.size() >= 3 && IsSeparator(text[2])) {
        node = Lookup(std::wstring(text.substr(0, 2)) + L"\\");
        start = 3;
    } else if (HasDrive(text)) {
        node = Lookup(std::wstring(text.substr(0, 2)));
        start = 2;
    } else if (!text.empty() && IsSeparator(text[0])) {
        if (text.size() >= 2 && IsSeparator(text[1])) return false;
        node = Lookup(L"\\");
        start = 1;
    } else {
        node = Lookup(currentDirectory_);
    }
    if (!node || text.empty()) return false;
    result += text.substr(0, start);
    for (size_t i = start; i < text.size();) {
        size_t end = i;
        while (end < text.size() && !IsSeparator(text[end])) ++end;
        std::wstring name(text.substr(i, end - i));
        if (name == L"..") {
            if (node->parent) node = std::shared_ptr<Node>(node, node->parent);
        } else if (!name.empty() && name != L".") {
            if (!node->IsDirectory()) return false;
            std::shared_ptr<Node> child = node->Child(name);
            if (!child) return false;
            if (toShort) {
                if (!child->shortName.empty()) name = child->shortName;
            } else if (!EqualNoCase(child->name, name)) {
                name = child->name;
            }
            node = child;
        }
        result += name;
        if (end < text.size()) result += text[end];
        i = end + 1;
    }
    converted = result;
    return true;
}

int FakeFileSystem::CreateOneDirectory(const std::wstring& path) {
    PathParts parts;
    if (!Resolve(path, currentDirectory_, parts) || parts.root.size() != 2) return kErrorPathNotFound;
    if (parts.names.empty()) return kErrorAlreadyExists;
    if (HasInvalidCharacter(parts.names.back())) return kErrorInvalidName;
    if (Lookup(path)) return kErrorAlreadyExists;
    std::wstring name = parts.names.back();
    parts.names.pop_back();
    parts.trailingSeparator = false;
    std::shared_ptr<Node> parent = Lookup(Join(parts));
    if (!parent || !parent->IsDirectory()) return kErrorPathNotFound;
    parent->AddChild(name, true);
    return 0;
}

// SHCreateDirectory tries the whole path first; when that fails it creates each prefix ending at
// a backslash in turn and gives the result of the last attempt.
int FakeFileSystem::CreateDirectoryTree(const std::wstring& path) {
    bool relative = path.empty() || !(path[0] == L'\\' || (path.size() >= 2 && path[1] == L':'));
    if (relative) return kErrorBadPathname;
    int result = CreateOneDirectory(path);
    if (result == 0 || result == kErrorAlreadyExists || result == kErrorFileExists || result == kErrorFilenameTooLong)
        return result;
    std::wstring text = path.substr(0, kMaxPath - 1);
    if (text.back() != L'\\') text += L'\\';
    for (size_t i = 3; i < text.size(); ++i)
        if (text[i] == L'\\') result = CreateOneDirectory(text.substr(0, i));
    return result;
}

// The node of a file to open, created when asked and missing; null with the system's code when the
// path names no file that can be opened.
std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::FileToOpen(const std::wstring& path, bool create,
                                                                 uint32_t& error) {
    std::shared_ptr<Node> node = Lookup(path);
    if (!node) {
        PathParts parts;
        if (!Resolve(path, currentDirectory_, parts) || parts.names.empty()) {
            error = kErrorPathNotFound;
            return nullptr;
        }
        if (parts.trailingSeparator || HasInvalidCharacter(parts.names.back())) {
            error = kErrorInvalidName;
            return nullptr;
        }
        std::wstring name = parts.names.back();
        parts.names.pop_back();
        std::shared_ptr<Node> parent = Lookup(Join(parts));
        if (!parent || !parent->IsDirectory()) {
            error = kErrorPathNotFound;
            return nullptr;
        }
        if (!create) {
            error = kErrorFileNotFound;
            return nullptr;
        }
        node = parent->AddChild(name, false);
    }
    if (node->IsDirectory()) {
        error = kErrorAccessDenied;
        return nullptr;
    }
    return node;
}

std::unique_ptr<File> FakeFileSystem::Open(const std::wstring& path, FileAccess access, bool denyWrite) {
    bool writes = access != FileAccess::Read;
    uint32_t error = 0;
    std::shared_ptr<Node> node = FileToOpen(path, writes, error);
    if (!node) return nullptr;
    if (writes && (node->attributes & kAttributeReadOnly)) return nullptr;
    if (node->denyAll > 0) return nullptr;
    if ((writes && node->denyWriters > 0) || (denyWrite && node->writers > 0)) return nullptr;
    if (access == FileAccess::Write) node->bytes.clear();
    return std::make_unique<OpenFile>(*this, node, access, denyWrite ? Sharing::DenyWrite : Sharing::All);
}

std::unique_ptr<File> FakeFileSystem::OpenDenyAll(const std::wstring& path, FileAccess access, uint32_t& error) {
    bool writes = access != FileAccess::Read;
    error = 0;
    std::shared_ptr<Node> node = FileToOpen(path, writes, error);
    if (!node) return nullptr;
    if (writes && (node->attributes & kAttributeReadOnly)) {
        error = kErrorAccessDenied;
        return nullptr;
    }
    if (node->handles > 0) {
        error = kErrorSharingViolation;
        return nullptr;
    }
    if (access == FileAccess::Write) node->bytes.clear();
    return std::make_unique<OpenFile>(*this, node, access, Sharing::DenyAll);
}

size_t FakeFileSystem::TakeWriteBudget(size_t wanted) {
    if (!writeBudget_) return wanted;
    size_t granted = std::min(wanted, *writeBudget_);
    *writeBudget_ -= granted;
    return granted;
}

// The directory a path's last name lies in, and that name; null when there is no such directory.
std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::ParentOf(const std::wstring& path, std::wstring& name) {
    PathParts parts;
    if (!Resolve(path, currentDirectory_, parts) || parts.names.empty()) return nullptr;
    name = parts.names.back();
    parts.names.pop_back();
    parts.trailingSeparator = false;
    std::shared_ptr<Node> parent = Lookup(Join(parts));
    return parent && parent->IsDirectory() ? parent : nullptr;
}

// A rename: the source node keeps its bytes and takes the target's place and the name as given.
uint32_t FakeFileSystem::Replace(const std::wstring& source, const std::wstring& target) {
    if (replaceError_) return replaceError_;
    std::shared_ptr<Node> moving = Lookup(source);
    if (!moving || !moving->parent) return kErrorFileNotFound;
    if (moving->handles > 0) return kErrorSharingViolation;
    std::wstring name;
    std::shared_ptr<Node> parent = ParentOf(target, name);
    if (!parent) return kErrorPathNotFound;
    std::shared_ptr<Node> replaced = parent->Child(name);
    if (replaced == moving) return 0;
    if (replaced) {
        if (replaced->IsDirectory() || (replaced->attributes & kAttributeReadOnly) || replaced->handles > 0)
            return kErrorAccessDenied;
        parent->Remove(replaced.get());
    }
    moving->parent->Remove(moving.get());
    moving->name = name;
    moving->shortName.clear();
    parent->Insert(moving);
    return 0;
}

uint32_t FakeFileSystem::Delete(const std::wstring& path) {
    uint32_t error = 0;
    std::shared_ptr<Node> node = FileToOpen(path, false, error);
    if (!node) return error;
    if (node->attributes & kAttributeReadOnly) return kErrorAccessDenied;
    if (node->handles > 0) return kErrorSharingViolation;
    node->parent->Remove(node.get());
    return 0;
}

uint32_t FakeFileSystem::CopyWithoutReplacing(const std::wstring& source, const std::wstring& target) {
    uint32_t error = 0;
    std::shared_ptr<Node> original = FileToOpen(source, false, error);
    if (!original) return error;
    if (original->denyAll > 0) return kErrorSharingViolation;
    if (Lookup(target)) return kErrorFileExists;
    std::shared_ptr<Node> copy = FileToOpen(target, true, error);
    if (!copy) return error;
    copy->bytes = original->bytes;
    return 0;
}

}  // namespace platform::fake
