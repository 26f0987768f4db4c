// Shared memory for tests: blocks a host left, and the order in which the program took and let go.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/SharedMemory.h"

namespace platform::fake {

class FakeSharedMemory : public SharedMemory {
public:
    std::unique_ptr<SharedView> Map(const std::wstring& name, uint32_t sizeBytes, uint32_t& error) override;
    std::unique_ptr<NamedMutex> Mutex(const std::wstring& name) override;

    // A block a host made, as the units it holds; it may be longer than the size the reader asks
    // for, as a real view reaches to the end of its page.
    void AddBlock(const std::wstring& name, std::vector<uint16_t> units);
    // The units of a block, as the program left them; null when none of that name exists.
    const std::vector<uint16_t>* Block(const std::wstring& name) const;
    // Every mapping fails from now on with this error code.
    void FailMapping(uint32_t error) { failure_ = error; }
    // "map <name> <size>", "unmap <name>", "mutex <name>", "lock <name>", "unlock <name>",
    // "close <name>", in the order they happened.
    const std::vector<std::wstring>& events() const { return state_->events; }

private:
    struct State {
        std::map<std::wstring, std::vector<uint16_t>> blocks;
        std::vector<std::wstring> events;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
    std::optional<uint32_t> failure_;
};

}  // namespace platform::fake
