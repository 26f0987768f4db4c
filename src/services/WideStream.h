// A file read as the C runtime's binary wide stream ("rbS" with fgetws): 16-bit units as they stand,
// so a line keeps its "\r\n" and a byte order mark shows up as U+FEFF. Readers remove both themselves.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

class WideStream {
public:
    // Opens through the long-path form; denyWrite shuts writers out while it is open.
    // False when the file cannot be opened.
    bool Open(const std::wstring& path, bool denyWrite = false);
    // As fgetws with a buffer of bufferChars: at most bufferChars - 1 units, up to and including a line
    // feed, its text ending at a NUL unit. False at the end of the file when nothing was read.
    bool ReadLine(std::wstring& line, size_t bufferChars);
    void Close() { file_.reset(); }

private:
    bool NextUnit(wchar_t& unit);

    std::unique_ptr<platform::File> file_;
    unsigned char buffer_[4096];
    size_t filled_ = 0;
    size_t used_ = 0;
};

// The other way: text as the units a file holds, little-endian, appended to bytes.
void AppendUtf16(std::vector<uint8_t>& bytes, std::wstring_view text);
