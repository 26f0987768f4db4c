#include "services/WideStream.h"

#include "platform/Platform.h"
#include "services/LongPath.h"

bool WideStream::Open(const std::wstring& path, bool denyWrite) {
    file_ = platform::Current().files.Open(ToLongPathForm(path), platform::FileAccess::Read, denyWrite);
    filled_ = used_ = 0;
    return file_ != nullptr;
}

bool WideStream::NextUnit(wchar_t& unit) {
    unsigned char bytes[2];
    for (int i = 0; i < 2; ++i) {
        if (used_ == filled_) {
            filled_ = file_ ? file_->Read(buffer_, sizeof buffer_) : 0;
            used_ = 0;
            // A lone last byte is no unit: the stream ends there.
            if (filled_ == 0) return false;
        }
        bytes[i] = buffer_[used_++];
    }
    unit = static_cast<wchar_t>(bytes[0] | (bytes[1] << 8));
    return true;
}

bool WideStream::ReadLine(std::wstring& line, size_t bufferChars) {
    line.clear();
    bool any = false;
    wchar_t unit;
    while (line.size() + 1 < bufferChars && NextUnit(unit)) {
        any = true;
        line.push_back(unit);
        if (unit == L'\n') break;
    }
    // The caller sees a C string: a NUL unit ends the line's text, though the stream has moved past it.
    size_t nul = line.find(L'\0');
    if (nul != std::wstring::npos) line.resize(nul);
    return any;
}

void AppendUtf16(std::vector<uint8_t>& bytes, std::wstring_view text) {
    for (wchar_t unit : text) {
        bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<uint8_t>((unit >> 8) & 0xFF));
    }
}
