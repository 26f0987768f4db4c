// Pictures through GDI+, the shell's thumbnails and the common controls' image lists.
#pragma once

#include <cstdint>

#include "platform/Images.h"

namespace platform::win32 {

class Win32Images : public Images {
public:
    Win32Images() = default;
    ~Win32Images() override;

    std::unique_ptr<Picture> Load(const std::wstring& path) override;
    std::unique_ptr<Picture> Thumbnail(const std::wstring& path, int width, int height) override;
    int StripFrameCount(const std::wstring& path) override;

private:
    // GDI+ is started at the first load and stays until the end.
    bool StartGdiPlus();

    uintptr_t gdiplusToken_ = 0;
    bool started_ = false;
};

}  // namespace platform::win32
