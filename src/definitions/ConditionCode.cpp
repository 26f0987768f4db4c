#include "definitions/ConditionCode.h"

namespace {

// The unconditional forms "A" and "B"; unconditional only where they come first.
ConditionCode Unconditional(bool first, wchar_t letter) {
    ConditionCode code;
    code.folderCondition = 1;
    code.selectionRule = first ? 1 : 0;
    code.virtualRule = letter == L'B' ? 1 : 0;
    return code;
}

}  // namespace

ConditionCode ConditionCode::Read(const std::wstring& text) {
    ConditionCode code;
    if (text.empty()) {
        code.folderCondition = 1;
        return code;
    }
    switch (text[0]) {
        case L'N':
            code.folderCondition = 0;
            break;
        case L'-':
            code.folderCondition = 1;
            break;
        case L'X':
            code.folderCondition = 1;
            code.virtualRule = 1;
            break;
        case L'A':
        case L'B':
            return Unconditional(true, text[0]);
        default:
            break;
    }
    for (size_t i = 1; i < text.size(); ++i) {
        switch (text[i]) {
            case L'N':
                code.folderCondition = 0;
                break;
            case L'F':
                code.needsFile = true;
                break;
            case L'D':
                code.needsFolder = true;
                break;
            case L'X':
                code.folderCondition = 1;
                break;
            case L'A':
            case L'B':
                // Later on, "A" and "B" keep the selection conditions: so the lists have it.
                return Unconditional(false, text[i]);
            default:
                break;
        }
    }
    return code;
}

std::wstring ConditionCode::Write() const {
    if (folderCondition == 1 && selectionRule == 1) return virtualRule == 1 ? L"B--" : L"A--";
    std::wstring text;
    if (folderCondition == 0)
        text = L"N";
    else
        text = virtualRule == 1 ? L"X" : L"-";
    text += needsFile ? L'F' : L'-';
    text += needsFolder ? L'D' : L'-';
    return text;
}
