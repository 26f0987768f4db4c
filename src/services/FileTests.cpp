#include "services/FileTests.h"

#include "platform/Platform.h"
#include "services/LongPath.h"
#include "services/PathHelpers.h"

bool FileExists(const std::wstring& path) {
    platform::FileSystem& files = platform::Current().files;
    // The shells of the early 2000s do not know the faster search, so those get the plain one.
    int version = files.ShellVersion();
    platform::FindStyle style =
        (version == 501 || version == 600) ? platform::FindStyle::Plain : platform::FindStyle::BasicLargeFetch;
    platform::FindData found;
    return files.FindFirst(StripSeparator(path), style, found);
}

uint32_t FileAttributes(const std::wstring& path) {
    return platform::Current().files.GetAttributes(ToLongPathForm(path));
}
