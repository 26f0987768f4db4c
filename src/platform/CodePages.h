// The system's knowledge of legacy text encodings: guessing the code page of a run of bytes, and
// turning bytes of a code page into UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace platform {

class CodePages {
public:
    CodePages() = default;
    CodePages(const CodePages&) = delete;
    CodePages& operator=(const CodePages&) = delete;
    virtual ~CodePages() = default;

    // The system's best guess for text that may be a web page, with no preferred code page;
    // nullopt when it cannot tell or is not there.
    virtual std::optional<uint32_t> DetectInputCodepage(std::span<const uint8_t> bytes) = 0;
    // The bytes as text of the code page, at most outputUnits units; nullopt when the system cannot
    // convert them.
    virtual std::optional<std::wstring> ConvertToUnicode(uint32_t codePage, std::span<const uint8_t> bytes,
                                                         size_t outputUnits) = 0;
};

}  // namespace platform
