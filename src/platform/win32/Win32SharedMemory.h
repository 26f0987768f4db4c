#pragma once

#include "platform/SharedMemory.h"

namespace platform::win32 {

class Win32SharedMemory : public SharedMemory {
public:
    std::unique_ptr<SharedView> Map(const std::wstring& name, uint32_t sizeBytes, uint32_t& error) override;
    std::unique_ptr<NamedMutex> Mutex(const std::wstring& name) override;
};

}  // namespace platform::win32
