// The pictures the skin settings name, loaded when their groups are read: the list's background
// picture, and the frame counts of the progress and animation strips.
#pragma once

#include <memory>
#include <string>

#include "settings/SettingsStore.h"

namespace platform {
class Picture;
}

// The background picture as the host draws it in the mode: modes 2 and 3 the file itself, 4 and 5
// the shell's picture scaled into width by height; none for other modes, an empty name or a failure.
std::unique_ptr<platform::Picture> LoadBackgroundPicture(int32_t mode, const std::wstring& file, int32_t width,
                                                         int32_t height);

void LoadSkinPictures(SettingsStore& store);
void LoadStatusAnimePictures(SettingsStore& store);
