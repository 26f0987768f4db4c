#include "pages/StatusTemplates.h"

StatusTemplates PresetTemplates(StatusPreset preset) {
    switch (preset) {
        case StatusPreset::English:
            return {L"(Free Space:%DiskFree% Total Size:%DiskSize%)", L"%SelCount% objects selected%SelSize%",
                    L"%AllCount% Objects%AllSize% %DiskInfo%"};
        case StatusPreset::Sample:
            return {L"(%DiskFree%/%DiskSize%)", L"%SelCount%%SelSize%/%AllCount%%AllSize% %Type%",
                    L"%AllCount%%AllSize% %Type% %DiskInfo%"};
        case StatusPreset::Japanese:
            break;
    }
    return {L"(空きディスク領域:%DiskFree%)", L"%SelCount%個の項目を選択%SelSize%",
            L"%AllCount%個%AllSize%の項目%DiskInfo%"};
}

StatusParts PartsOfListCtrls(int32_t listCtrls) {
    StatusParts parts{};
    for (int i = 0; i < kStatusParts; ++i) parts[i] = (listCtrls >> i) & 1;
    return parts;
}

int32_t ListCtrlsOfParts(const StatusParts& parts) {
    int32_t value = 0;
    for (int i = 0; i < kStatusParts; ++i)
        if (parts[i]) value |= 1 << i;
    return value;
}
