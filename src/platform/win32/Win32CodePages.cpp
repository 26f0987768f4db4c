#include "platform/win32/Win32CodePages.h"

#include <windows.h>

#include <mlang.h>

#include <algorithm>
#include <climits>
#include <vector>

namespace platform::win32 {

namespace {

constexpr int kMostGuesses = 32;
// The import library of the cross compiler lacks this one interface id.
constexpr GUID kMultiLanguage2 = {0xDCCFC164, 0x2B38, 0x11D2, {0xB7, 0xEC, 0x00, 0xC0, 0x4F, 0x8F, 0x5D, 0x9A}};

// The object is made for each use: these are rare calls, and the caller's apartment may change.
class MultiLanguage {
public:
    MultiLanguage() {
        if (FAILED(CoCreateInstance(CLSID_CMultiLanguage, nullptr, CLSCTX_INPROC_SERVER, kMultiLanguage2,
                                    reinterpret_cast<void**>(&object_)))) {
            object_ = nullptr;
        }
    }
    ~MultiLanguage() {
        if (object_) object_->Release();
    }
    MultiLanguage(const MultiLanguage&) = delete;
    MultiLanguage& operator=(const MultiLanguage&) = delete;

    IMultiLanguage2* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    IMultiLanguage2* object_ = nullptr;
};

std::vector<CHAR> Copy(std::span<const uint8_t> bytes) {
    return std::vector<CHAR>(bytes.begin(), bytes.end());
}

}  // namespace

std::optional<uint32_t> Win32CodePages::DetectInputCodepage(std::span<const uint8_t> bytes) {
    MultiLanguage language;
    if (!language || bytes.empty() || bytes.size() > INT_MAX) return std::nullopt;
    std::vector<CHAR> source = Copy(bytes);
    INT size = static_cast<INT>(source.size());
    DetectEncodingInfo found[kMostGuesses] = {};
    INT count = kMostGuesses;
    if (FAILED(language->DetectInputCodepage(MLDETECTCP_HTML, 0, source.data(), &size, found, &count)) || count < 1) {
        return std::nullopt;
    }
    return found[0].nCodePage;
}

std::optional<std::wstring> Win32CodePages::ConvertToUnicode(uint32_t codePage, std::span<const uint8_t> bytes,
                                                             size_t outputUnits) {
    MultiLanguage language;
    if (!language || bytes.size() > UINT_MAX || outputUnits > UINT_MAX) return std::nullopt;
    std::vector<CHAR> source = Copy(bytes);
    std::vector<WCHAR> text(outputUnits + 1);
    DWORD mode = 0;
    UINT sourceSize = static_cast<UINT>(source.size());
    UINT textSize = static_cast<UINT>(outputUnits);
    if (language->ConvertStringToUnicode(&mode, codePage, source.data(), &sourceSize, text.data(), &textSize) != S_OK) {
        return std::nullopt;
    }
    return std::wstring(text.data(), std::min<size_t>(textSize, outputUnits));
}

}  // namespace platform::win32
