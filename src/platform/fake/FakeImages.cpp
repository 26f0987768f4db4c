#include "platform/fake/FakeImages.h"

namespace platform::fake {

namespace {

class FakePicture : public Picture {
public:
    explicit FakePicture(PictureFacts facts) : facts_(facts) {}
    int width() const override { return facts_.width; }
    int height() const override { return facts_.height; }
    int bitsPerPixel() const override { return facts_.bitsPerPixel; }
    bool hasAlpha() const override { return facts_.alpha; }
    uintptr_t bitmap() const override { return 0; }

private:
    PictureFacts facts_;
};

}  // namespace

std::unique_ptr<Picture> FakeImages::Load(const std::wstring& path) {
    auto found = pictures_.find(path);
    if (found == pictures_.end()) return nullptr;
    return std::make_unique<FakePicture>(found->second);
}

std::unique_ptr<Picture> FakeImages::Thumbnail(const std::wstring& path, int width, int height) {
    thumbnails_.push_back({path, width, height});
    auto found = pictures_.find(path);
    if (found == pictures_.end()) return nullptr;
    return std::make_unique<FakePicture>(PictureFacts{width, height, 32, found->second.alpha});
}

int FakeImages::StripFrameCount(const std::wstring& path) {
    auto found = strips_.find(path);
    return found == strips_.end() ? 0 : found->second;
}

}  // namespace platform::fake
