// Pictures from files, as the host draws them: a whole image at its own size, a thumbnail the
// shell scales into a box, and the count of frames in a strip of icons.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace platform {

// A loaded picture. Destroying it frees the bitmap.
class Picture {
public:
    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    virtual ~Picture() = default;

    virtual int width() const = 0;
    virtual int height() const = 0;
    virtual int bitsPerPixel() const = 0;
    // True when the pixels carry an alpha channel that drawing must blend.
    virtual bool hasAlpha() const = 0;
    // The bitmap handle to draw with; the picture keeps owning it.
    virtual uintptr_t bitmap() const = 0;
};

class Images {
public:
    Images() = default;
    Images(const Images&) = delete;
    Images& operator=(const Images&) = delete;
    virtual ~Images() = default;

    // The file as a device-independent bitmap: a format the screen can draw keeps its depth and
    // palette, one with alpha becomes 32-bit with alpha, anything else 32-bit without. Null when the
    // file cannot be read as a picture.
    virtual std::unique_ptr<Picture> Load(const std::wstring& path) = 0;
    // The shell's picture of the file scaled into width by height. Null on any failure.
    virtual std::unique_ptr<Picture> Thumbnail(const std::wstring& path, int width, int height) = 0;
    // How many square frames a bitmap strip holds once loaded as an image list with the silver mask;
    // 0 when it cannot be loaded.
    virtual int StripFrameCount(const std::wstring& path) = 0;
};

}  // namespace platform
