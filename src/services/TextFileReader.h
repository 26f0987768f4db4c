// Reads a whole UTF-16 little-endian file at once and gives it out line by line, keeping the byte
// offsets and line numbers that scripts, menu files and dialog text files report errors with.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/FileSystem.h"

class TextFileReader {
public:
    TextFileReader() = default;
    TextFileReader(const TextFileReader&) = delete;
    TextFileReader& operator=(const TextFileReader&) = delete;

    // Closes what was open and reads the whole file; the file stays open with writers shut out until
    // the reader is closed, reopened or destroyed. True when at least one byte was read.
    bool Open(const std::wstring& path);
    // Delivers the next line into line, which must hold limit + 2 units: a last line that fills the
    // limit is still closed by two NULs.
    // A line longer than limit ends the reading (false). At the end of the data the result depends on
    // what the caller left in line[0]: a caller reusing its buffer gets one more empty line.
    bool ReadLine(wchar_t* line, uint32_t limit);
    // Number of the line last read, or -1 when its offset was never seen.
    int32_t GetLineNumber() const;
    // The text behind the byte order mark up to its first NUL; the position does not move.
    std::wstring WholeText() const;
    void Close();

    const std::wstring& path() const { return path_; }
    bool is_open() const { return file_ != nullptr; }
    uint32_t LineStartOffset = 0;
    uint32_t NextLineOffset = 0;
    // Byte offset at which the next line begins; anyone may set it to jump.
    uint32_t ReadPosition = 0;

private:
    wchar_t UnitAt(uint32_t offset) const;

    std::unique_ptr<platform::File> file_;
    std::wstring path_;
    std::vector<uint8_t> buffer_;
    int32_t bytesRead_ = 0;
    int32_t dataLength_ = 0;
    std::unordered_map<uint32_t, int32_t> lineTable_;
    int32_t lineCounter_ = 0;
};
