#include "ui/Control.h"

#include <vector>

namespace ui {

std::wstring Control::Text() const {
    int length = GetWindowTextLengthW(window_);
    if (length <= 0) return {};
    std::vector<wchar_t> buffer(static_cast<size_t>(length) + 1, L'\0');
    int copied = GetWindowTextW(window_, buffer.data(), length + 1);
    return std::wstring(buffer.data(), static_cast<size_t>(copied > 0 ? copied : 0));
}

bool Control::IsClass(const wchar_t* className) const {
    wchar_t name[64] = {};
    if (!window_ || !GetClassNameW(window_, name, 64)) return false;
    return CompareStringOrdinal(name, -1, className, -1, TRUE) == CSTR_EQUAL;
}

}  // namespace ui
