// One set of expectations for the fake file system and, in the Windows build, the real one.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "platform/fake/FakeFileSystem.h"

#include "unit/platform/ContractSuite.h"

#ifdef _WIN32
#include <windows.h>

#include <filesystem>

#include "platform/win32/Win32FileSystem.h"
#endif

namespace {

using platform::FileAccess;
using platform::FileSystem;
using platform::FindData;
using platform::FindStyle;

// An empty scratch directory that is also the current directory, and an entry's 8.3 name.
class FileSystemHarness {
public:
    virtual ~FileSystemHarness() = default;
    virtual FileSystem& files() = 0;
    // Absolute, in long form, without a trailing separator.
    virtual std::wstring scratch() const = 0;
    // The path with its last name in 8.3 form; empty when the file system has none.
    virtual std::wstring ShortForm(const std::wstring& path) = 0;
    virtual void MakeReadOnly(const std::wstring& path) = 0;
};

class FakeHarness : public FileSystemHarness {
public:
    FakeHarness() {
        files_.AddDirectory(scratch());
        files_.ChangeDirectory(scratch());
    }
    FileSystem& files() override { return files_; }
    std::wstring scratch() const override { return L"C:\\Users\\Tester\\AppData\\Local\\Temp\\OptionTests"; }
    std::wstring ShortForm(const std::wstring& path) override {
        files_.SetShortName(path, L"LONGDI~1");
        return path.substr(0, path.find_last_of(L'\\') + 1) + L"LONGDI~1";
    }
    void MakeReadOnly(const std::wstring& path) override { files_.SetAttributes(path, platform::kAttributeReadOnly); }

private:
    platform::fake::FakeFileSystem files_;
};

#ifdef _WIN32
class RealHarness : public FileSystemHarness {
public:
    RealHarness() {
        static int counter = 0;
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        wchar_t longTemp[MAX_PATH];
        GetLongPathNameW(temp, longTemp, MAX_PATH);
        scratch_ = std::wstring(longTemp) + L"OptionTests-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                   std::to_wstring(++counter);
        CreateDirectoryW(scratch_.c_str(), nullptr);
        GetCurrentDirectoryW(MAX_PATH, previous_);
        SetCurrentDirectoryW(scratch_.c_str());
    }
    ~RealHarness() override {
        SetCurrentDirectoryW(previous_);
        std::error_code ignored;  // read-only files first become writable, then the tree goes
        for (const auto& entry : std::filesystem::recursive_directory_iterator(scratch_, ignored))
            SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
        std::filesystem::remove_all(scratch_, ignored);
    }
    FileSystem& files() override { return files_; }
    std::wstring scratch() const override { return scratch_; }
    std::wstring ShortForm(const std::wstring& path) override {
        wchar_t shortPath[MAX_PATH];
        DWORD length = GetShortPathNameW(path.c_str(), shortPath, MAX_PATH);
        if (length == 0 || length >= MAX_PATH) return std::wstring();
        std::wstring shortName(shortPath, length);
        return path.substr(0, path.find_last_of(L'\\') + 1) + shortName.substr(shortName.find_last_of(L'\\') + 1);
    }
    void MakeReadOnly(const std::wstring& path) override { SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY); }

private:
    platform::win32::Win32FileSystem files_;
    std::wstring scratch_;
    wchar_t previous_[MAX_PATH] = {};
};
#else
using RealHarness = void;  // the native build has only the fake
#endif

using Implementation = contract::Implementation<FileSystemHarness>;

// Who holds a file open: a writer appends, a rewriter starts the file afresh, DenyAll reads alone.
enum class Holder { None, Reader, ReaderDenyingWriters, Writer, Rewriter, DenyAll };

class FileSystemContract : public testing::TestWithParam<Implementation> {
protected:
    void SetUp() override {
        harness_ = GetParam().make();
        root_ = harness_->scratch();
    }

    FileSystem& files() { return harness_->files(); }
    std::wstring At(const std::wstring& below) const { return root_ + L"\\" + below; }

    bool WriteFile(const std::wstring& path, const std::string& bytes, FileAccess access = FileAccess::Write) {
        auto file = files().Open(path, access, false);
        return file && file->Write(bytes.data(), bytes.size()) == bytes.size();
    }

    std::string ReadFile(const std::wstring& path) {
        auto file = files().Open(path, FileAccess::Read, false);
        if (!file) return "<cannot open>";
        std::string bytes(static_cast<size_t>(file->Size()), '\0');
        bytes.resize(file->Read(bytes.data(), bytes.size()));
        return bytes;
    }

    std::unique_ptr<platform::File> Hold(const std::wstring& path, Holder holder, uint32_t& error) {
        if (holder == Holder::None) return nullptr;
        if (holder == Holder::DenyAll) return files().OpenDenyAll(path, FileAccess::Read, error);
        const FileAccess access = holder == Holder::Writer     ? FileAccess::Append
                                  : holder == Holder::Rewriter ? FileAccess::Write
                                                               : FileAccess::Read;
        return files().Open(path, access, holder == Holder::ReaderDenyingWriters);
    }

    std::set<std::wstring> FoundNames(const std::wstring& pattern, FindStyle style) {
        std::set<std::wstring> names;
        for (const FindData& found : files().FindAll(pattern, style)) names.insert(found.name);
        return names;
    }

    std::unique_ptr<FileSystemHarness> harness_;
    std::wstring root_;
};

TEST_P(FileSystemContract, FullPathsFollowTheRealRules) {
    std::wstring parent = root_.substr(0, root_.find_last_of(L'\\'));
    std::wstring drive = root_.substr(0, 2);
    // clang-format off
    struct Case { std::wstring path; std::wstring full; };
    const Case cases[] = {
        {L"a\\..\\b\\.\\c", At(L"b\\c")}, {L"x/y", At(L"x\\y")}, {At(L"a\\\\b"), At(L"a\\b")},
        {At(L"dir\\name. . "), At(L"dir\\name")},  // trailing dots and blanks of the last name
        {At(L"na.me.\\x"), At(L"na.me\\x")},       // trailing dots of any name
        {At(L"a\\b\\"), At(L"a\\b\\")}, {At(L"a\\b\\."), At(L"a\\b")}, {At(L"a\\b\\.\\"), At(L"a\\b\\")},
        {At(L"a\\b\\..\\"), At(L"a\\")},  // a separator behind ".." stays
        {L".", root_}, {L"..", parent}, {drive + L"\\a\\..\\..\\..", drive + L"\\"}, {L"\\top", drive + L"\\top"},
    };
    // clang-format on
    for (const Case& c : cases) {
        std::wstring full = L"poison";
        EXPECT_TRUE(files().FullPathName(c.path, 1024, full)) << testing::PrintToString(c.path);
        EXPECT_EQ(c.full, full) << testing::PrintToString(c.path);
    }
    std::wstring full;
    EXPECT_FALSE(files().FullPathName(L"", 1024, full));
    const std::wstring path = At(L"abc");
    EXPECT_FALSE(files().FullPathName(path, path.size(), full)) << "no room for the terminator";
    EXPECT_TRUE(files().FullPathName(path, path.size() + 1, full));
    EXPECT_EQ(path, full);
}

// Directories come with every missing parent and the shell's codes; attributes then tell a directory,
// a file and nothing apart, in any letter case.
TEST_P(FileSystemContract, CreatingDirectoriesGivesTheShellCodes) {
    ASSERT_TRUE(WriteFile(At(L"file.txt"), "x"));
    // clang-format off
    struct Case { std::wstring path; int result; };
    const Case cases[] = {
        {At(L"a\\b\\c"), 0}, {At(L"A\\B\\C"), 183}, {At(L"t\\"), 0},  // every missing parent; already there
        {At(L"file.txt"), 183}, {At(L"file.txt\\sub"), 3},     // a file of that name, below a file
        {L"rel\\x", 161}, {L"", 161},                           // relative
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(c.result, files().CreateDirectoryTree(c.path)) << testing::PrintToString(c.path);
    enum Kind { Nothing, File, Directory };
    const std::pair<std::wstring, Kind> kinds[] = {
        {At(L"a"), Directory},     {At(L"A\\b\\C\\"), Directory},   {At(L"t"), Directory},
        {L"a\\b", Directory},      {At(L"file.txt"), File},         {At(L"FILE.TXT"), File},
        {At(L"missing"), Nothing}, {At(L"file.txt\\sub"), Nothing},
    };
    for (const auto& [path, kind] : kinds) {
        const uint32_t attributes = files().GetAttributes(path);
        const Kind found = attributes == platform::kInvalidAttributes          ? Nothing
                           : (attributes & platform::kAttributeDirectory) != 0 ? Directory
                                                                               : File;
        EXPECT_EQ(kind, found) << testing::PrintToString(path);
    }
}

TEST_P(FileSystemContract, FindMatchesWildcardsInTheLastName) {
    for (const wchar_t* name : {L"alpha.txt", L"beta.txt", L"Gamma.log"}) ASSERT_TRUE(WriteFile(At(name), "12345"));
    ASSERT_EQ(0, files().CreateDirectoryTree(At(L"sub")));
    using Names = std::set<std::wstring>;
    // clang-format off
    struct Case { std::wstring pattern; Names names; };
    const Case cases[] = {
        {At(L"*.txt"), {L"alpha.txt", L"beta.txt"}}, {At(L"?eta.*"), {L"beta.txt"}},
        {At(L"GAMMA.LOG"), {L"Gamma.log"}},  // the name as stored
        {At(L"*"), {L".", L"..", L"alpha.txt", L"beta.txt", L"Gamma.log", L"sub"}}, {At(L"sub\\*"), {L".", L".."}},
        {At(L"nothing*"), {}}, {At(L"sub\\"), {}} /* a trailing separator finds nothing */, {At(L"missing\\*"), {}},
    };
    // clang-format on
    for (FindStyle style : {FindStyle::Plain, FindStyle::BasicLargeFetch}) {
        for (const Case& c : cases) {
            EXPECT_EQ(c.names, FoundNames(c.pattern, style)) << testing::PrintToString(c.pattern);
            FindData first;
            EXPECT_EQ(!c.names.empty(), files().FindFirst(c.pattern, style, first))
                << testing::PrintToString(c.pattern);
            if (!c.names.empty()) {
                EXPECT_EQ(1u, c.names.count(first.name)) << testing::PrintToString(first.name);
            }
        }
    }
    FindData file, directory;
    ASSERT_TRUE(files().FindFirst(At(L"beta.txt"), FindStyle::Plain, file));
    ASSERT_TRUE(files().FindFirst(At(L"sub"), FindStyle::BasicLargeFetch, directory));
    EXPECT_EQ(std::tuple(5u, 0u, platform::kAttributeDirectory),
              std::tuple(file.size, file.attributes & platform::kAttributeDirectory,
                         directory.attributes & platform::kAttributeDirectory));
}

// Both ways of opening: writing starts the file afresh, appending goes on behind what it holds and
// creates a file that is not there, and reading needs the file.
TEST_P(FileSystemContract, OpenModesReadWriteAndAppend) {
    for (bool alone : {false, true}) {
        SCOPED_TRACE(alone ? "held for itself alone" : "shared");
        auto put = [&](const std::wstring& path, const std::string& bytes, FileAccess access) {
            uint32_t error = 99;
            auto file = alone ? files().OpenDenyAll(path, access, error) : files().Open(path, access, false);
            return file && file->Write(bytes.data(), bytes.size()) == bytes.size() && error == (alone ? 0u : 99u);
        };
        const std::wstring path = At(alone ? L"alone.bin" : L"shared.bin"), fresh = path + L".new";
        EXPECT_FALSE(put(path, "", FileAccess::Read));
        EXPECT_TRUE(put(path, std::string("ab\0c", 4), FileAccess::Write));
        EXPECT_TRUE(put(path, "de", FileAccess::Append));
        EXPECT_EQ(std::string("ab\0cde", 6), ReadFile(path));
        EXPECT_TRUE(put(path, "f", FileAccess::Write));
        EXPECT_TRUE(put(fresh, "g", FileAccess::Append));
        EXPECT_EQ((std::vector<std::string>{"f", "g"}), (std::vector<std::string>{ReadFile(path), ReadFile(fresh)}));
    }
    EXPECT_EQ("f", ReadFile(L"\\\\?\\" + At(L"shared.bin"))) << "the long-path form";
    ASSERT_EQ(0, files().CreateDirectoryTree(At(L"dir")));
    for (const auto& [below, access] : {std::pair(L"dir", FileAccess::Read), std::pair(L"dir", FileAccess::Write),
                                        std::pair(L"missing\\x.bin", FileAccess::Write)})
        EXPECT_EQ(nullptr, files().Open(At(below), access, false)) << testing::PrintToString(std::wstring(below));
}

// Who else may open a file one handle holds. Sharing is checked per open handle, so a second handle of
// this process stands for another program's; a refused exclusive open says why in the system's code.
TEST_P(FileSystemContract, SharingDecidesWhoElseMayOpenAHeldFile) {
    // clang-format off
    struct Case { Holder holder; Holder other; bool opens; };
    const Case cases[] = {
        {Holder::ReaderDenyingWriters, Holder::Rewriter, false}, {Holder::ReaderDenyingWriters, Holder::Writer, false},
        {Holder::ReaderDenyingWriters, Holder::Reader, true},
        {Holder::ReaderDenyingWriters, Holder::ReaderDenyingWriters, true},
        {Holder::Writer, Holder::ReaderDenyingWriters, false},  // write denial cannot be had while a writer holds it
        {Holder::Writer, Holder::Reader, true},
        {Holder::DenyAll, Holder::Reader, false}, {Holder::DenyAll, Holder::Writer, false},
        {Holder::DenyAll, Holder::DenyAll, false}, {Holder::Reader, Holder::DenyAll, false},
    };
    // clang-format on
    const std::wstring path = At(L"held.txt");
    ASSERT_TRUE(WriteFile(path, "old"));
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(c.holder) << " then " << static_cast<int>(c.other));
        uint32_t error = 99;
        auto holder = Hold(path, c.holder, error);
        ASSERT_TRUE(holder);
        EXPECT_EQ(c.opens, Hold(path, c.other, error) != nullptr);
        EXPECT_TRUE(c.other != Holder::DenyAll || error == 32u) << "ERROR_SHARING_VIOLATION, not " << error;
    }
    EXPECT_EQ("old", ReadFile(path)) << "no refused writer touched it";
    uint32_t error = 99;
    // clang-format off
    struct Failure { const wchar_t* below; FileAccess access; uint32_t error; };
    ASSERT_EQ(0, files().CreateDirectoryTree(At(L"dir")));
    const Failure failures[] = {
        {L"missing\\x.txt", FileAccess::Write, 3},  // ERROR_PATH_NOT_FOUND
        {L"gone.txt", FileAccess::Read, 2},         // ERROR_FILE_NOT_FOUND
        {L"dir", FileAccess::Append, 5},            // ERROR_ACCESS_DENIED
    };
    // clang-format on
    for (const Failure& f : failures) {
        error = 99;
        EXPECT_EQ(nullptr, files().OpenDenyAll(At(f.below), f.access, error));
        EXPECT_EQ(f.error, error) << testing::PrintToString(std::wstring(f.below));
    }
}

// What stands at a path before a file is put there.
enum class Standing { Nothing, File, ReadOnlyFile, Directory };

// The writer's last step is one rename that either puts the new file in place or leaves both as they
// were; deleting takes only a file that is free. 99: not tried.
TEST_P(FileSystemContract, ReplaceAndDeleteTakeOnlyWhatIsFree) {
    // ERROR_FILE_NOT_FOUND 2, ERROR_ACCESS_DENIED 5, ERROR_SHARING_VIOLATION 32
    // clang-format off
    struct Case { const char* label; Standing standing; Holder holder; uint32_t replaceError; uint32_t deleteError; };
    const Case cases[] = {
        {"an existing file", Standing::File, Holder::None, 0, 0}, {"nothing", Standing::Nothing, Holder::None, 0, 2},
        {"a read-only file", Standing::ReadOnlyFile, Holder::None, 5, 5},
        {"a directory", Standing::Directory, Holder::None, 5, 99},
        {"a file a reader holds", Standing::File, Holder::ReaderDenyingWriters, 5, 32},
        {"a file a writer holds", Standing::File, Holder::Writer, 5, 99},
        {"a file held for itself alone", Standing::File, Holder::DenyAll, 5, 99},
    };
    // clang-format on
    auto place = [&](const std::wstring& path, Standing standing) {
        if (standing == Standing::Directory) files().CreateDirectoryTree(path);
        if (standing == Standing::File || standing == Standing::ReadOnlyFile) WriteFile(path, "old");
        if (standing == Standing::ReadOnlyFile) harness_->MakeReadOnly(path);
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        const std::wstring source = At(L"new" + std::to_wstring(++number) + L".tmp");
        const std::wstring target = At(L"target" + std::to_wstring(number));
        ASSERT_TRUE(WriteFile(source, "new"));
        place(target, c.standing);
        uint32_t ignored = 0;
        std::unique_ptr<platform::File> holder = Hold(target, c.holder, ignored);
        ASSERT_EQ(c.holder != Holder::None, holder != nullptr);
        EXPECT_EQ(c.replaceError, files().Replace(source, target));
        holder.reset();
        if (c.replaceError == 0) {
            EXPECT_EQ("new", ReadFile(target));
            EXPECT_EQ(platform::kInvalidAttributes, files().GetAttributes(source)) << "the source is gone";
        } else {
            EXPECT_EQ("new", ReadFile(source)) << "the source stays";
            EXPECT_TRUE(c.standing == Standing::Directory || ReadFile(target) == "old");
        }
        if (c.deleteError == 99) continue;
        const std::wstring doomed = At(L"doomed" + std::to_wstring(number));
        place(doomed, c.standing);
        holder = Hold(doomed, c.holder, ignored);
        EXPECT_EQ(c.deleteError, files().Delete(doomed));
        holder.reset();
        EXPECT_EQ(c.deleteError == 0 || c.standing == Standing::Nothing,
                  files().GetAttributes(doomed) == platform::kInvalidAttributes);
    }
    EXPECT_EQ(2u, files().Replace(At(L"missing.tmp"), At(L"target1")));
    EXPECT_EQ("new", ReadFile(At(L"target1")));
    ASSERT_TRUE(WriteFile(At(L"open.tmp"), "x"));
    auto open = files().Open(At(L"open.tmp"), FileAccess::Read, false);
    EXPECT_EQ(32u, files().Replace(At(L"open.tmp"), At(L"target1"))) << "the source open";
}

// A copy that never replaces: the first one makes the file, later ones leave what is there.
TEST_P(FileSystemContract, CopyWithoutReplacingMakesAFileOnlyWhereNoneIs) {
    // ERROR_FILE_NOT_FOUND 2, ERROR_PATH_NOT_FOUND 3, ERROR_FILE_EXISTS 80; source, target, error, target after
    // clang-format off
    const std::tuple<const wchar_t*, const wchar_t*, uint32_t, const char*> cases[] = {
        {L"icon", L"copy", 0, "picture"}, {L"icon", L"copy", 80, "picture"}, {L"icon", L"mine", 80, "mine"},
        {L"icon", L"folder", 80, "<cannot open>"}, {L"missing", L"other", 2, "<cannot open>"},
        {L"icon", L"nowhere\\copy", 3, "<cannot open>"}};
    // clang-format on
    ASSERT_TRUE(WriteFile(At(L"icon"), "picture") && WriteFile(At(L"mine"), "mine"));
    files().CreateDirectoryTree(At(L"folder"));
    for (const auto& [source, target, error, after] : cases) {
        EXPECT_EQ(error, files().CopyWithoutReplacing(At(source), At(target))) << testing::PrintToString(target);
        EXPECT_EQ(after, ReadFile(At(target)));
    }
}

// Long path names expand 8.3 names; short path names use them where there are some.
TEST_P(FileSystemContract, EightDotThreeNamesInBothDirections) {
    std::wstring longDirectory = At(L"Long Directory Name");
    ASSERT_EQ(0, files().CreateDirectoryTree(longDirectory));
    ASSERT_TRUE(WriteFile(longDirectory + L"\\inner.txt", "x"));
    std::wstring longPath, shortPath;
    EXPECT_TRUE(files().LongPathName(longDirectory + L"\\inner.txt", longPath));
    EXPECT_EQ(longDirectory + L"\\inner.txt", longPath) << "a long path stays as it is";
    EXPECT_FALSE(files().LongPathName(At(L"missing"), longPath) || files().ShortPathName(At(L"missing"), shortPath));

    std::wstring shortDirectory = harness_->ShortForm(longDirectory);
    if (shortDirectory.empty()) GTEST_SKIP() << "no 8.3 names on this volume";
    ASSERT_NE(longDirectory, shortDirectory);
    EXPECT_TRUE(files().LongPathName(shortDirectory + L"\\inner.txt", longPath));
    EXPECT_EQ(longDirectory + L"\\inner.txt", longPath);
    EXPECT_EQ("x", ReadFile(shortDirectory + L"\\inner.txt")) << "the short name reaches the file";
    std::wstring shortRoot;
    ASSERT_TRUE(files().ShortPathName(root_, shortRoot));
    EXPECT_TRUE(files().ShortPathName(longDirectory + L"\\inner.txt", shortPath));
    EXPECT_EQ(shortRoot + shortDirectory.substr(root_.size()) + L"\\inner.txt", shortPath)
        << "a name that is 8.3 already stays";
}

TEST_P(FileSystemContract, ShellVersionIsAVersionNumber) {
    const int version = files().ShellVersion();
    EXPECT_TRUE(version >= 500 && version < 10000 && version == files().ShellVersion()) << version;
}

INSTANTIATE_TEST_SUITE_P(FileSystem, FileSystemContract,
                         testing::ValuesIn(contract::Implementations<FileSystemHarness, FakeHarness, RealHarness>()),
                         contract::NameOf);

}  // namespace
