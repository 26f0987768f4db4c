#include "platform/win32/Win32System.h"

#include <windows.h>

namespace platform::win32 {

namespace {

class OwnedHandle : public SystemObject {
public:
    explicit OwnedHandle(HANDLE handle) : handle_(handle) {}
    ~OwnedHandle() override { CloseHandle(handle_); }

private:
    HANDLE handle_;
};

class OwnedModule : public SystemObject {
public:
    explicit OwnedModule(HMODULE module) : module_(module) {}
    ~OwnedModule() override { FreeLibrary(module_); }

private:
    HMODULE module_;
};

}  // namespace

std::unique_ptr<SystemObject> Win32System::CreatePresenceMutex(const std::wstring& name) {
    // Only the first copy creates the mutex; a later one just looks and lets go.
    if (HANDLE existing = OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str())) {
        CloseHandle(existing);
        return nullptr;
    }
    HANDLE created = CreateMutexW(nullptr, FALSE, name.c_str());
    return created ? std::make_unique<OwnedHandle>(created) : nullptr;
}

std::unique_ptr<SystemObject> Win32System::LoadDataLibrary(const std::wstring& path) {
    HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_WITH_ALTERED_SEARCH_PATH);
    return module ? std::make_unique<OwnedModule>(module) : nullptr;
}

}  // namespace platform::win32
