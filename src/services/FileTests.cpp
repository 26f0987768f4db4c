#include "services/FileTests.h"

#include "platform/Platform.h"
#include "services/PathHelpers.h"

platform::FindStyle SearchStyle() {
    const int version = platform::Current().files.ShellVersion();
    return version == 501 || version == 600 ? platform::FindStyle::Plain : platform::FindStyle::BasicLargeFetch;
}

bool FileExists(const std::wstring& path) {
    platform::FindData found;
    return platform::Current().files.FindFirst(StripSeparator(path), SearchStyle(), found);
}
