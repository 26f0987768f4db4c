#include "definitions/CommunicationCode.h"

CommunicationCode CommunicationCode::Read(const std::wstring& text) {
    CommunicationCode code;
    for (wchar_t letter : text) {
        switch (letter) {
            case L'C':
                code.currentFolder = true;
                code.mode = Mode::DragAndDrop;
                break;
            case L'S':
                code.selectedItems = true;
                code.mode = Mode::DragAndDrop;
                break;
            case L'T':
                code.targetFolder = true;
                code.mode = Mode::DragAndDrop;
                break;
            case L'X':
            case L'M':
                code = CommunicationCode{};
                code.mode = letter == L'X' ? Mode::CopyData : Mode::SharedMemory;
                break;
            default:
                break;
        }
    }
    return code;
}

std::wstring CommunicationCode::Write() const {
    switch (mode) {
        case Mode::DragAndDrop: {
            std::wstring text;
            if (currentFolder) text += L'C';
            if (selectedItems) text += L'S';
            if (targetFolder) text += L'T';
            return text;
        }
        case Mode::CopyData:
            return L"X";
        case Mode::SharedMemory:
            return L"M";
        case Mode::None:
            break;
    }
    return L"";
}
