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

// An export's address is its place in the list, counted from 1.
class FakeCodeLibrary : public CodeLibrary {
public:
    FakeCodeLibrary(std::wstring path, std::shared_ptr<const CodeContent> content,
                    std::shared_ptr<std::vector<std::wstring>> events)
        : path_(std::move(path)), content_(std::move(content)), events_(std::move(events)) {
        events_->push_back(L"load " + path_);
    }
    ~FakeCodeLibrary() override { events_->push_back(L"free " + path_); }

    uintptr_t ExportAddress(const char* name) const override {
        const auto& names = content_->exports;
        for (size_t i = 0; i < names.size(); ++i) {
            if (names[i] == name) return i + 1;
        }
        return 0;
    }
    std::wstring CallFillingText(uintptr_t function, size_t units) const override {
        Record(function, units);
        return content_->filled.substr(0, units ? units - 1 : 0);
    }
    void CallWithValue(uintptr_t function, uintptr_t value) const override { Record(function, value); }

private:
    void Record(uintptr_t function, uintptr_t argument) const {
        const std::string& name = content_->exports.at(function - 1);
        events_->push_back(std::wstring(name.begin(), name.end()) + L" " + std::to_wstring(argument));
    }

    std::wstring path_;
    std::shared_ptr<const CodeContent> content_;
    std::shared_ptr<std::vector<std::wstring>> events_;
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

LoadedLibrary FakeSystem::LoadCodeLibrary(const std::wstring& path) {
    constexpr uint32_t kModuleNotFound = 126;
    auto found = codeLibraries_.find(UpperCase(path));
    if (found == codeLibraries_.end()) return {nullptr, kModuleNotFound};
    return {std::make_unique<FakeCodeLibrary>(path, found->second, codeEvents_), 0};
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
