#include "settings/SettingsStore.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "platform/Platform.h"

namespace {

// A string read asks for at most this many bytes into a buffer two bytes larger, so the text read
// is always terminated, even when the stored data has no terminator.
constexpr uint32_t kStringQueryBytes = 32768;
constexpr size_t kStringBufferBytes = 65538;

std::wstring TextOfBytes(const uint8_t* bytes, size_t size) {
    std::wstring text;
    for (size_t i = 0; i + 1 < size; i += 2) {
        wchar_t unit = static_cast<wchar_t>(bytes[i] | (bytes[i + 1] << 8));
        if (unit == 0) break;
        text.push_back(unit);
    }
    return text;
}

std::vector<uint8_t> BytesOfText(const std::wstring& text) {
    std::vector<uint8_t> bytes;
    bytes.reserve(text.size() * 2);
    for (wchar_t unit : text) {
        bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<uint8_t>((unit >> 8) & 0xFF));
    }
    return bytes;
}

// A 4-byte read: what the value holds lands over the default's bytes.
int32_t QueryInt(platform::RegistryKey& key, const std::wstring& name, int32_t defaultValue) {
    uint8_t bytes[4];
    uint32_t value = static_cast<uint32_t>(defaultValue);
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<uint8_t>(value >> (8 * i));
    uint32_t size = sizeof bytes;
    if (key.QueryValue(name, nullptr, bytes, &size) != platform::kRegistryOk) return defaultValue;
    return static_cast<int32_t>(bytes[0] | (bytes[1] << 8) | (bytes[2] << 16) |
                                (static_cast<uint32_t>(bytes[3]) << 24));
}

bool QueryString(platform::RegistryKey& key, const std::wstring& name, std::vector<uint8_t>& buffer,
                 std::wstring& text) {
    std::memset(buffer.data(), 0, kStringBufferBytes - 1);
    uint32_t size = kStringQueryBytes;
    if (key.QueryValue(name, nullptr, buffer.data(), &size) != platform::kRegistryOk) return false;
    text = TextOfBytes(buffer.data(), kStringBufferBytes);
    return true;
}

// The count leaves the terminator out, as the host's writer does; the terminator still sits behind the
// text in memory, where the system may look for it.
bool SetString(platform::RegistryKey& key, const std::wstring& name, const std::wstring& text) {
    std::vector<uint8_t> bytes = BytesOfText(text + L'\0');
    return key.SetValue(name, platform::kRegSz, bytes.data(), static_cast<uint32_t>(bytes.size() - 2)) ==
           platform::kRegistryOk;
}

bool SetInt(platform::RegistryKey& key, const std::wstring& name, int32_t value) {
    uint8_t bytes[4];
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<uint8_t>(static_cast<uint32_t>(value) >> (8 * i));
    return key.SetValue(name, platform::kRegDword, bytes, sizeof bytes) == platform::kRegistryOk;
}

std::wstring FaceName(const LogFont& font) {
    size_t length = 0;
    while (length < std::size(font.lfFaceName) && font.lfFaceName[length]) ++length;
    return std::wstring(font.lfFaceName, length);
}

std::unique_ptr<platform::RegistryKey> CreateKey(const std::wstring& path) {
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.CreateKey(path, key) != platform::kRegistryOk) key.reset();
    return key;
}

}  // namespace

SettingsStore::SettingsStore(int screenLogPixelsY) : DisplayFactor(screenLogPixelsY / 96.0) {}

void SettingsStore::SelectSection(const std::wstring& section) {
    std::wstring path = kSectionRoot + section;
    if (path == currentPath_) return;
    key_.reset();
    currentPath_ = std::move(path);
}

bool SettingsStore::OpenKey() {
    if (!key_) key_ = CreateKey(currentPath_);
    return key_ != nullptr;
}

std::wstring SettingsStore::ReadString(const std::wstring& name, const std::wstring& defaultText) {
    if (readBuffer_.empty()) readBuffer_.resize(kStringBufferBytes);
    std::wstring text;
    if (!OpenKey() || !QueryString(*key_, name, readBuffer_, text)) return defaultText;
    return text;
}

int32_t SettingsStore::ReadInt(const std::wstring& name, int32_t defaultValue) {
    if (!OpenKey()) return defaultValue;
    return QueryInt(*key_, name, defaultValue);
}

bool SettingsStore::WriteString(const std::wstring& name, const std::wstring& text) {
    return OpenKey() && SetString(*key_, name, text);
}

bool SettingsStore::WriteInt(const std::wstring& name, int32_t value) {
    return OpenKey() && SetInt(*key_, name, value);
}

void SettingsStore::ReadFont(LogFont& font) {
    const LogFont defaultFont = platform::Current().environment.IconTitleFont();
    font = defaultFont;
    font.lfHeight = ReadInt(L"Point", defaultFont.lfHeight);
    font.lfWidth = ReadInt(L"Width", defaultFont.lfWidth);
    font.lfEscapement = ReadInt(L"Escapement", defaultFont.lfEscapement);
    font.lfOrientation = ReadInt(L"Orientation", defaultFont.lfOrientation);
    font.lfWeight = ReadInt(L"Weight", defaultFont.lfWeight);
    font.lfItalic = static_cast<uint8_t>(ReadInt(L"Italic", defaultFont.lfItalic));
    font.lfUnderline = 0;
    font.lfStrikeOut = 0;
    font.lfCharSet = static_cast<uint8_t>(ReadInt(L"CharSet", defaultFont.lfCharSet));
    font.lfOutPrecision = static_cast<uint8_t>(ReadInt(L"OutPrecision", defaultFont.lfOutPrecision));
    font.lfClipPrecision = static_cast<uint8_t>(ReadInt(L"ClipPrecision", defaultFont.lfClipPrecision));
    font.lfQuality = static_cast<uint8_t>(ReadInt(L"Quality", defaultFont.lfQuality));
    font.lfPitchAndFamily = static_cast<uint8_t>(ReadInt(L"PitchAndFamily", defaultFont.lfPitchAndFamily));
    std::wstring face = ReadString(L"FontName", FaceName(defaultFont));
    // A name that does not fit leaves the field empty, as the runtime's checked copy does.
    std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0');
    if (face.size() < 32) std::copy(face.begin(), face.end(), font.lfFaceName);
}

bool SettingsStore::WriteFont(const LogFont& font) {
    WriteInt(L"Point", font.lfHeight);
    WriteInt(L"Width", font.lfWidth);
    WriteInt(L"Escapement", font.lfEscapement);
    WriteInt(L"Orientation", font.lfOrientation);
    WriteInt(L"Weight", font.lfWeight);
    WriteInt(L"Italic", font.lfItalic);
    WriteInt(L"CharSet", font.lfCharSet);
    WriteInt(L"OutPrecision", font.lfOutPrecision);
    WriteInt(L"ClipPrecision", font.lfClipPrecision);
    WriteInt(L"Quality", font.lfQuality);
    WriteInt(L"PitchAndFamily", font.lfPitchAndFamily);
    return WriteString(L"FontName", FaceName(font));
}

PathStateList SettingsStore::ReadAllStrings() {
    constexpr uint32_t kNameChars = 1024;
    constexpr uint32_t kDataBytes = 1024;
    PathStateList values;
    if (!OpenKey()) return values;
    for (uint32_t index = 0;; ++index) {
        uint8_t data[kDataBytes + 2] = {};
        uint32_t size = kDataBytes;
        std::wstring name;
        const long result = key_->EnumValue(index, kNameChars, name, nullptr, data, &size);
        // A name or text too long still makes a row, with whatever the system left in the buffers;
        // any other failure ends the list rather than asking again for ever.
        if (result != platform::kRegistryOk && result != platform::kRegistryMoreData) break;
        values.push_back({std::move(name), TextOfBytes(data, sizeof data)});
    }
    return values;
}

bool SettingsStore::DeleteSection() {
    key_.reset();
    return platform::Current().registry.DeleteKey(currentPath_) == platform::kRegistryOk;
}

std::wstring DirectReadString(const std::wstring& path, const std::wstring& name, const std::wstring& defaultText) {
    auto key = CreateKey(path);
    if (!key) return defaultText;
    std::vector<uint8_t> buffer(kStringBufferBytes);
    std::wstring text;
    return QueryString(*key, name, buffer, text) ? text : defaultText;
}

int32_t DirectReadInt(const std::wstring& path, const std::wstring& name, int32_t defaultValue) {
    auto key = CreateKey(path);
    return key ? QueryInt(*key, name, defaultValue) : defaultValue;
}

bool DirectWriteString(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
    auto key = CreateKey(path);
    return key && SetString(*key, name, text);
}

bool DirectWriteInt(const std::wstring& path, const std::wstring& name, int32_t value) {
    auto key = CreateKey(path);
    return key && SetInt(*key, name, value);
}
