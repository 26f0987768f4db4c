// Move-only owners for the handles the end-to-end tests hold.
#pragma once

#include <windows.h>

#include <utility>

namespace e2e {

template <typename T, auto Close>
class Unique {
public:
    Unique() = default;
    explicit Unique(T value) : value_(value) {}
    Unique(Unique&& other) noexcept : value_(std::exchange(other.value_, T{})) {}
    Unique& operator=(Unique&& other) noexcept {
        if (this != &other) reset(std::exchange(other.value_, T{}));
        return *this;
    }
    Unique(const Unique&) = delete;
    Unique& operator=(const Unique&) = delete;
    ~Unique() { reset(); }

    T get() const { return value_; }
    explicit operator bool() const { return value_ != T{}; }
    T release() { return std::exchange(value_, T{}); }
    void reset(T value = T{}) {
        if (value_ != T{}) Close(value_);
        value_ = value;
    }
    // For out-parameters of the API: frees what is held and hands out the slot.
    T* put() {
        reset();
        return &value_;
    }

private:
    T value_{};
};

inline void CloseKernelHandle(HANDLE handle) {
    CloseHandle(handle);
}
inline void CloseKey(HKEY key) {
    RegCloseKey(key);
}
inline void UnmapView(void* view) {
    UnmapViewOfFile(view);
}

// Holds null for "none"; callers turn INVALID_HANDLE_VALUE into null before they store it.
using UniqueHandle = Unique<HANDLE, CloseKernelHandle>;
using UniqueKey = Unique<HKEY, CloseKey>;
using UniqueView = Unique<void*, UnmapView>;

}  // namespace e2e
