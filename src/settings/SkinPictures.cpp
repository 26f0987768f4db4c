#include "settings/SkinPictures.h"

#include <algorithm>

#include "platform/Platform.h"
#include "services/Format.h"
#include "services/PathHelpers.h"

namespace {

// The strips are looked for in the program's own directory, not where the pages list the skins:
// an installation links the two when it wants the strips drawn.
int StripFrames(const wchar_t* pattern, const std::wstring& name) {
    platform::Platform& system = platform::Current();
    const std::wstring directory = DirectoryPart(system.environment.ModuleFileName());
    return system.images.StripFrameCount(crt::Format(pattern, directory.c_str(), name.c_str()));
}

}  // namespace

std::unique_ptr<platform::Picture> LoadBackgroundPicture(int32_t mode, const std::wstring& file, int32_t width,
                                                         int32_t height) {
    if (file.empty()) return nullptr;
    platform::Images& images = platform::Current().images;
    switch (mode) {
        case 2:
        case 3:
            return images.Load(file);
        case 4:
        case 5:
            return images.Thumbnail(file, width, height);
        default:
            return nullptr;
    }
}

void LoadSkinPictures(SettingsStore& store) {
    store.BkImage = LoadBackgroundPicture(store.BkMode, store.BkImgName, store.BkPosX, store.BkPosY);
    store.PrgImageCount = StripFrames(L"%sStatusImg\\%s\\img.bmp", store.PrgSkin);
}

void LoadStatusAnimePictures(SettingsStore& store) {
    // "Default" is the absence of an animation, not a folder of that name.
    const bool none = store.StatusAnimeSkin.empty() || store.StatusAnimeSkin == L"Default";
    store.StatusAnimeImageCount = none ? 0 : StripFrames(L"%sStatusAnime\\%s\\img.bmp", store.StatusAnimeSkin);
    store.StatusAnimeSprites.assign(static_cast<size_t>(std::max(store.StatusAnimenCount, 0)), {0, 0});
}
