#include "platform/fake/FakeSystem.h"

#include "platform/fake/CodePage1252.h"

namespace platform::fake {

namespace {

// Runs its action when the program lets go of the object.
class Held : public SystemObject {
public:
    explicit Held(std::function<void()> release) : release_(std::move(release)) {}
    ~Held() override { release_(); }

private:
    std::function<void()> release_;
};

// Counts itself among the loaded libraries until the program frees it.
class FakeLibrary : public ResourceLibrary {
public:
    FakeLibrary(std::shared_ptr<const LibraryContent> content, std::shared_ptr<int> loaded)
        : content_(std::move(content)), loaded_(std::move(loaded)) {
        ++*loaded_;
    }
    ~FakeLibrary() override { --*loaded_; }

    std::wstring LoadStringResource(uint32_t id) const override {
        auto found = content_->strings.find(id);
        return found == content_->strings.end() ? std::wstring() : found->second;
    }
    std::optional<Menu> LoadMenuResource(uint32_t id) const override {
        auto found = content_->menus.find(id);
        if (found == content_->menus.end()) return std::nullopt;
        return found->second;
    }

private:
    std::shared_ptr<const LibraryContent> content_;
    std::shared_ptr<int> loaded_;
};

}  // namespace

std::unique_ptr<SystemObject> FakeSystem::CreatePresenceMutex(const std::wstring& name) {
    if (!mutexes_->insert(name).second) return nullptr;
    return std::make_unique<Held>([mutexes = mutexes_, name] { mutexes->erase(name); });
}

std::unique_ptr<ResourceLibrary> FakeSystem::LoadDataLibrary(const std::wstring& path) {
    loadAttempts_.push_back(path);
    auto found = libraries_.find(path);
    if (found == libraries_.end()) return nullptr;
    return std::make_unique<FakeLibrary>(found->second, loaded_);
}

bool FakeSystem::SetClipboardText(const std::wstring& text) {
    if (clipboardHeld_) return false;
    clipboardAnsi_.reset();
    clipboardUnicode_ = text;
    return true;
}

bool FakeSystem::ClipboardAnsiText(std::string& text) {
    if (clipboardHeld_) return false;
    if (clipboardAnsi_) {
        text = clipboardAnsi_->substr(0, clipboardAnsi_->find('\0'));
        return true;
    }
    if (!clipboardUnicode_) return false;
    text = ToCodePage1252(clipboardUnicode_->substr(0, clipboardUnicode_->find(L'\0')));
    return true;
}

}  // namespace platform::fake
