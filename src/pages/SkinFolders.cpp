#include "pages/SkinFolders.h"

#include "platform/Platform.h"
#include "services/LongPath.h"

std::vector<std::wstring> ListSkinFolders(const std::wstring& root) {
    std::vector<std::wstring> names;
    for (const platform::FindData& found :
         platform::Current().files.FindAll(ToLongPathForm(root + L"*"), platform::FindStyle::Plain)) {
        if ((found.attributes & platform::kAttributeDirectory) == 0) continue;
        if (found.name == L"." || found.name == L"..") continue;
        names.push_back(found.name);
    }
    return names;
}

BackgroundModeRule RuleOfBackgroundMode(int32_t mode) {
    switch (mode) {
        case 0:
        case 1:
            return {true, L"0～100%", 100};
        case 2:
        case 3:
            return {false, L"", 65535};
        default:
            return {true, L"0～65535Pix", 65535};
    }
}

bool BackgroundPositionFits(int32_t mode, uint32_t x, uint32_t y) {
    const uint32_t highest = RuleOfBackgroundMode(mode).highest;
    return x <= highest && y <= highest;
}
