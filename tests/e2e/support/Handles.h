// Handle owners; null is "none", so callers turn INVALID_HANDLE_VALUE into null before they store it.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace e2e {

template <typename T, auto Close>
struct Closer {
    void operator()(T value) const { Close(value); }
};

using UniqueHandle = std::unique_ptr<void, Closer<HANDLE, CloseHandle>>;
using UniqueKey = std::unique_ptr<std::remove_pointer_t<HKEY>, Closer<HKEY, RegCloseKey>>;
using UniqueView = std::unique_ptr<void, Closer<void*, UnmapViewOfFile>>;

}  // namespace e2e
