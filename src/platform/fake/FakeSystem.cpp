#include "platform/fake/FakeSystem.h"

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

}  // namespace

std::unique_ptr<SystemObject> FakeSystem::CreatePresenceMutex(const std::wstring& name) {
    if (!mutexes_->insert(name).second) return nullptr;
    return std::make_unique<Held>([mutexes = mutexes_, name] { mutexes->erase(name); });
}

std::unique_ptr<SystemObject> FakeSystem::LoadDataLibrary(const std::wstring& path) {
    loadAttempts_.push_back(path);
    if (!libraries_.count(path)) return nullptr;
    ++*loaded_;
    return std::make_unique<Held>([loaded = loaded_] { --*loaded; });
}

}  // namespace platform::fake
