// Pictures for tests: files are pictures only when the test says so, and every thumbnail asked for
// is recorded with its box.
#pragma once

#include <map>
#include <vector>

#include "platform/Images.h"

namespace platform::fake {

struct PictureFacts {
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool alpha = false;
};

struct ThumbnailRequest {
    std::wstring path;
    int width;
    int height;
    bool operator==(const ThumbnailRequest&) const = default;
};

class FakeImages : public Images {
public:
    std::unique_ptr<Picture> Load(const std::wstring& path) override;
    std::unique_ptr<Picture> Thumbnail(const std::wstring& path, int width, int height) override;
    int StripFrameCount(const std::wstring& path) override;

    void AddPicture(const std::wstring& path, PictureFacts facts) { pictures_[path] = facts; }
    void AddStrip(const std::wstring& path, int frames) { strips_[path] = frames; }
    const std::vector<ThumbnailRequest>& thumbnails() const { return thumbnails_; }

private:
    std::map<std::wstring, PictureFacts> pictures_;
    std::map<std::wstring, int> strips_;
    std::vector<ThumbnailRequest> thumbnails_;
};

}  // namespace platform::fake
