#include "platform/fake/FakeSharedMemory.h"

namespace platform::fake {

namespace {

class FakeView : public SharedView {
public:
    FakeView(std::shared_ptr<std::vector<std::wstring>> events, std::wstring name, std::span<uint16_t> units)
        : events_(std::move(events)), name_(std::move(name)), units_(units) {}
    ~FakeView() override { events_->push_back(L"unmap " + name_); }
    std::span<uint16_t> Units() override { return units_; }

private:
    std::shared_ptr<std::vector<std::wstring>> events_;
    std::wstring name_;
    std::span<uint16_t> units_;
};

class FakeMutex : public NamedMutex {
public:
    FakeMutex(std::shared_ptr<std::vector<std::wstring>> events, std::wstring name)
        : events_(std::move(events)), name_(std::move(name)) {}
    ~FakeMutex() override { events_->push_back(L"close " + name_); }
    void Lock() override { events_->push_back(L"lock " + name_); }
    void Unlock() override { events_->push_back(L"unlock " + name_); }

private:
    std::shared_ptr<std::vector<std::wstring>> events_;
    std::wstring name_;
};

}  // namespace

std::unique_ptr<SharedView> FakeSharedMemory::Map(const std::wstring& name, uint32_t sizeBytes, uint32_t& error) {
    state_->events.push_back(L"map " + name + L" " + std::to_wstring(sizeBytes));
    if (failure_) {
        error = *failure_;
        return nullptr;
    }
    // A fresh mapping holds only zero bytes.
    auto [block, fresh] = state_->blocks.try_emplace(name, (sizeBytes + 1) / 2, uint16_t{0});
    // The view shares the state's lifetime through the events it writes to.
    std::shared_ptr<std::vector<std::wstring>> events(state_, &state_->events);
    return std::make_unique<FakeView>(events, name, std::span<uint16_t>(block->second));
}

std::unique_ptr<NamedMutex> FakeSharedMemory::Mutex(const std::wstring& name) {
    state_->events.push_back(L"mutex " + name);
    std::shared_ptr<std::vector<std::wstring>> events(state_, &state_->events);
    return std::make_unique<FakeMutex>(events, name);
}

void FakeSharedMemory::AddBlock(const std::wstring& name, std::vector<uint16_t> units) {
    state_->blocks[name] = std::move(units);
}

const std::vector<uint16_t>* FakeSharedMemory::Block(const std::wstring& name) const {
    auto found = state_->blocks.find(name);
    return found == state_->blocks.end() ? nullptr : &found->second;
}

}  // namespace platform::fake
