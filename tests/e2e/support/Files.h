// Raw bytes, UTF-16 units as the program writes them, and UTF-8 as the test programs log.
#pragma once

#include <optional>
#include <set>
#include <string>

namespace e2e {

// The whole file, even while another process writes it; empty when it cannot be read.
std::string ReadFileBytes(const std::wstring& path);
// Creates or replaces the file; false when it cannot be written.
bool WriteFileBytes(const std::wstring& path, const std::string& bytes);
// The file's 16-bit units, a byte-order mark included when there is one.
std::wstring ReadUtf16File(const std::wstring& path);
// Writes the units as they stand: a byte-order mark only when the text starts with one.
bool WriteUtf16File(const std::wstring& path, const std::wstring& text);
std::string Utf8(const std::wstring& text);

// Removes the file while it lives and puts back what was there, or nothing, afterwards.
class ScopedFile {
public:
    explicit ScopedFile(std::wstring path);
    ScopedFile(const ScopedFile&) = delete;
    ScopedFile& operator=(const ScopedFile&) = delete;
    ~ScopedFile();

    const std::wstring& Path() const { return path_; }

private:
    std::wstring path_;
    std::optional<std::string> saved_;
};

// Removes, when it goes, every file that appeared in the folder meanwhile: the files for translators.
class ScopedNewFiles {
public:
    explicit ScopedNewFiles(std::wstring folder);
    ScopedNewFiles(const ScopedNewFiles&) = delete;
    ScopedNewFiles& operator=(const ScopedNewFiles&) = delete;
    ~ScopedNewFiles();

private:
    std::wstring folder_;
    std::set<std::wstring> before_;
};

}  // namespace e2e
