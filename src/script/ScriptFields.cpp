#include "script/ScriptFields.h"

std::wstring PopField(std::wstring& text) {
    const size_t comma = text.find(L',');
    if (comma == std::wstring::npos) return text;
    std::wstring field = text.substr(0, comma);
    text.erase(0, comma + 1);
    return field;
}
