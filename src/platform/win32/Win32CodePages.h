// Code pages through the system's multi-language object.
#pragma once

#include "platform/CodePages.h"

namespace platform::win32 {

class Win32CodePages : public CodePages {
public:
    std::optional<uint32_t> DetectInputCodepage(std::span<const uint8_t> bytes) override;
    std::optional<std::wstring> ConvertToUnicode(uint32_t codePage, std::span<const uint8_t> bytes,
                                                 size_t outputUnits) override;
};

}  // namespace platform::win32
