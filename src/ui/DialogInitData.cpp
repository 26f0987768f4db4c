#include "ui/DialogInitData.h"

#include <cstdint>
#include <cstring>
#include <string>

#include "resources/resource.h"

namespace ui {

namespace {

// The 16-bit messages the data speaks of, as resource compilers still write them.
constexpr uint16_t kListAddString = 0x0401;
constexpr uint16_t kComboAddString = 0x0403;

// Our templates are UTF-8 and the resource compiler keeps their bytes, so the texts are UTF-8 too.
std::wstring FromUtf8(const char* text, int length) {
    if (length <= 0) return {};
    int units = MultiByteToWideChar(CP_UTF8, 0, text, length, nullptr, 0);
    if (units <= 0) return {};
    std::wstring wide(static_cast<size_t>(units), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text, length, wide.data(), units);
    return wide;
}

}  // namespace

void RunDialogInitData(HWND dialog, int templateId) {
    HMODULE module = GetModuleHandleW(nullptr);
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(templateId), MAKEINTRESOURCEW(RT_DIALOG_INIT));
    if (!found) return;
    HGLOBAL loaded = LoadResource(module, found);
    const auto* data = static_cast<const char*>(loaded ? LockResource(loaded) : nullptr);
    if (!data) return;
    const size_t size = SizeofResource(module, found);
    // Each entry: control id, message, byte count (16, 16 and 32 bits), then the text; a zero id ends.
    for (size_t at = 0; at + 8 <= size;) {
        uint16_t id = 0, message = 0;
        uint32_t length = 0;
        std::memcpy(&id, data + at, 2);
        std::memcpy(&message, data + at + 2, 2);
        std::memcpy(&length, data + at + 4, 4);
        at += 8;
        if (id == 0 || length > size - at) break;
        const char* text = data + at;
        at += length;
        const int count = static_cast<int>(strnlen(text, length));
        HWND control = GetDlgItem(dialog, id);
        if (!control) continue;
        const UINT add = message == kComboAddString ? CB_ADDSTRING : message == kListAddString ? LB_ADDSTRING : 0;
        if (add) SendMessageW(control, add, 0, reinterpret_cast<LPARAM>(FromUtf8(text, count).c_str()));
    }
}

}  // namespace ui
