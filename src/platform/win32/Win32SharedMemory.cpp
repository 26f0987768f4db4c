#include "platform/win32/Win32SharedMemory.h"

#include <windows.h>

namespace platform::win32 {

namespace {

// The access the host's readers have always asked for: every right of a section.
constexpr DWORD kViewAccess = 0xF001F;

class MappedView : public SharedView {
public:
    MappedView(HANDLE mapping, void* view, size_t bytes)
        : mapping_(mapping), view_(view), units_(static_cast<uint16_t*>(view), bytes / sizeof(uint16_t)) {}
    ~MappedView() override {
        UnmapViewOfFile(view_);
        CloseHandle(mapping_);
    }
    std::span<uint16_t> Units() override { return units_; }

private:
    HANDLE mapping_;
    void* view_;
    std::span<uint16_t> units_;
};

class Win32Mutex : public NamedMutex {
public:
    explicit Win32Mutex(HANDLE mutex) : mutex_(mutex) {}
    ~Win32Mutex() override {
        if (held_) ReleaseMutex(mutex_);
        CloseHandle(mutex_);
    }
    void Lock() override {
        // An abandoned mutex is ours as well.
        DWORD result = WaitForSingleObject(mutex_, INFINITE);
        held_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    }
    void Unlock() override {
        if (held_) ReleaseMutex(mutex_);
        held_ = false;
    }

private:
    HANDLE mutex_;
    bool held_ = false;
};

// How far the view can be read: to the end of its last page.
size_t ReadableBytes(void* view, uint32_t sizeBytes) {
    MEMORY_BASIC_INFORMATION info{};
    if (VirtualQuery(view, &info, sizeof(info)) == 0 || info.BaseAddress != view) return sizeBytes;
    return info.RegionSize;
}

}  // namespace

std::unique_ptr<SharedView> Win32SharedMemory::Map(const std::wstring& name, uint32_t sizeBytes, uint32_t& error) {
    HANDLE mapping = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeBytes, name.c_str());
    if (!mapping) {
        error = GetLastError();
        return nullptr;
    }
    void* view = MapViewOfFile(mapping, kViewAccess, 0, 0, sizeBytes);
    if (!view) {
        error = GetLastError();
        CloseHandle(mapping);
        return nullptr;
    }
    return std::make_unique<MappedView>(mapping, view, ReadableBytes(view, sizeBytes));
}

std::unique_ptr<NamedMutex> Win32SharedMemory::Mutex(const std::wstring& name) {
    HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    return mutex ? std::make_unique<Win32Mutex>(mutex) : nullptr;
}

}  // namespace platform::win32
