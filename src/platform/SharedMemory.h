// Named memory shared with another process, and the named mutex that guards it.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace platform {

// A mapped view. Destroying it unmaps the view and closes the mapping.
class SharedView {
public:
    SharedView() = default;
    SharedView(const SharedView&) = delete;
    SharedView& operator=(const SharedView&) = delete;
    virtual ~SharedView() = default;

    // The view as 16-bit units, as far as it can be read: the system maps whole pages, so this may
    // reach beyond the size that was asked for.
    virtual std::span<uint16_t> Units() = 0;
};

// A named mutex, created not owned. Destroying it closes it (after an unlock when it is held).
class NamedMutex {
public:
    NamedMutex() = default;
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;
    virtual ~NamedMutex() = default;

    // Waits without a time limit.
    virtual void Lock() = 0;
    virtual void Unlock() = 0;
};

class SharedMemory {
public:
    SharedMemory() = default;
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;
    virtual ~SharedMemory() = default;

    // CreateFileMappingW on the paging file (PAGE_READWRITE, sizeBytes) and MapViewOfFile of the
    // whole size with access 0xF001F: the mapping of that name when one exists, else a fresh one of
    // zero bytes. Null on failure, with the system's error code in error.
    virtual std::unique_ptr<SharedView> Map(const std::wstring& name, uint32_t sizeBytes, uint32_t& error) = 0;
    // CreateMutexW, not owned: the mutex of that name, made when it does not exist. Null on failure.
    virtual std::unique_ptr<NamedMutex> Mutex(const std::wstring& name) = 0;
};

}  // namespace platform
