// wcsftime of the C runtime in its "C" locale, for the fake clock: local time is UTC plus an offset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace platform::fake {

// The conversions %a %A %b %B %c %d %H %I %j %m %M %p %S %w %x %X %y %Y and %%, as the C runtime gives
// them in the "C" locale; any other conversion, or a result of bufferChars characters or more, gives
// the empty text (wcsftime returns 0 then).
std::wstring FormatCLocaleTime(int64_t localSeconds, const std::wstring& format, size_t bufferChars);

}  // namespace platform::fake
