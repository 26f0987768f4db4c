#include "services/TextFileReader.h"

#include "platform/Platform.h"
#include "services/LongPath.h"

namespace {

constexpr size_t kPadding = 4;  // zero bytes behind the data, so a last odd byte still reads as a unit

}  // namespace

bool TextFileReader::Open(const std::wstring& path) {
    Close();
    ReadPosition = 0;
    dataLength_ = 0;
    file_ = platform::Current().files.Open(ToLongPathForm(path), platform::FileAccess::Read, true);
    if (!file_) return false;
    std::vector<uint8_t> data;
    uint8_t chunk[65536];
    for (size_t got; (got = file_->Read(chunk, sizeof chunk)) > 0;) data.insert(data.end(), chunk, chunk + got);
    bytesRead_ = static_cast<int32_t>(data.size());
    dataLength_ = bytesRead_;
    data.resize(data.size() + kPadding, 0);
    buffer_ = std::move(data);
    if (bytesRead_ <= 0) return false;
    path_ = path;
    return true;
}

wchar_t TextFileReader::UnitAt(uint32_t offset) const {
    return static_cast<wchar_t>(buffer_[offset] | (buffer_[offset + 1] << 8));
}

bool TextFileReader::ReadLine(wchar_t* line, uint32_t limit) {
    const uint32_t length = static_cast<uint32_t>(dataLength_ > 0 ? dataLength_ : 0);
    if (ReadPosition == 0 && length > 1 && buffer_[0] == 0xFF && buffer_[1] == 0xFE) {
        ReadPosition = 2;
        NextLineOffset = 2;
    }
    LineStartOffset = ReadPosition;
    if (lineTable_.emplace(LineStartOffset, lineCounter_ + 1).second) ++lineCounter_;

    for (uint32_t count = 0;; ++count) {
        if (ReadPosition >= length) {
            if (line[0] == 0) return false;
            NextLineOffset = ReadPosition;
            line[count] = 0;
            line[count + 1] = 0;
            return true;
        }
        if (count >= limit) return false;
        wchar_t unit = UnitAt(ReadPosition);
        if (unit == L'\r' || unit == L'\n') {
            ReadPosition += 2;
            if (unit == L'\r' && ReadPosition < length && UnitAt(ReadPosition) == L'\n') ReadPosition += 2;
            NextLineOffset = ReadPosition;
            line[count] = 0;
            line[count + 1] = 0;
            return true;
        }
        line[count] = unit;
        ReadPosition += 2;
    }
}

int32_t TextFileReader::GetLineNumber() const {
    auto found = lineTable_.find(LineStartOffset);
    return found == lineTable_.end() ? -1 : found->second;
}

std::wstring TextFileReader::WholeText() const {
    std::wstring text;
    if (buffer_.empty()) return text;
    uint32_t offset = (dataLength_ > 1 && buffer_[0] == 0xFF && buffer_[1] == 0xFE) ? 2 : 0;
    for (; offset + 1 < buffer_.size(); offset += 2) {
        wchar_t unit = UnitAt(offset);
        if (unit == 0) break;
        text.push_back(unit);
    }
    return text;
}

void TextFileReader::Close() {
    buffer_.clear();
    buffer_.shrink_to_fit();
    file_.reset();
}
