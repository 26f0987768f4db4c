#include "services/WholeFileWriter.h"

#include "platform/Platform.h"
#include "services/LongPath.h"

std::wstring TemporaryPathFor(const std::wstring& path) {
    return path + L".tmp";
}

bool WriteWholeFile(const std::wstring& path, std::span<const uint8_t> bytes) {
    platform::FileSystem& files = platform::Current().files;
    const std::wstring temporary = ToLongPathForm(TemporaryPathFor(path));
    auto file = files.Open(temporary, platform::FileAccess::Write, true);
    // A temporary file we could not open is none of ours to remove.
    if (!file) return false;
    // The bytes must be on the disk before the rename is: otherwise a crash could leave the new name
    // on an empty file.
    bool written = file->Write(bytes.data(), bytes.size()) == bytes.size() && file->Flush();
    file.reset();
    if (written && files.Replace(temporary, ToLongPathForm(path)) == 0) return true;
    files.Delete(temporary);
    return false;
}
