#include "platform/win32/Win32System.h"

#include <windows.h>

#include <objbase.h>

#include <cstring>
#include <vector>

namespace platform::win32 {

namespace {

class OwnedHandle : public SystemObject {
public:
    explicit OwnedHandle(HANDLE handle) : handle_(handle) {}
    ~OwnedHandle() override { CloseHandle(handle_); }

private:
    HANDLE handle_;
};

// A menu loaded from a resource; destroying the top destroys its submenus with it.
class OwnedMenu {
public:
    explicit OwnedMenu(HMENU menu) : menu_(menu) {}
    ~OwnedMenu() {
        if (menu_) DestroyMenu(menu_);
    }
    OwnedMenu(const OwnedMenu&) = delete;
    OwnedMenu& operator=(const OwnedMenu&) = delete;
    HMENU get() const { return menu_; }

private:
    HMENU menu_;
};

std::wstring ItemText(HMENU menu, UINT position) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    // The first call only measures.
    if (!GetMenuItemInfoW(menu, position, TRUE, &info) || info.cch == 0) return {};
    std::wstring text(info.cch + 1, L'\0');
    info.dwTypeData = text.data();
    info.cch = static_cast<UINT>(text.size());
    if (!GetMenuItemInfoW(menu, position, TRUE, &info)) return {};
    text.resize(info.cch);
    return text;
}

Menu ReadMenu(HMENU menu) {
    Menu items;
    int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_SUBMENU;
        if (!GetMenuItemInfoW(menu, position, TRUE, &info)) continue;
        MenuItem item;
        // A popup of a plain MENU template has no id of its own; the system shows its handle there.
        bool handleAsId = info.hSubMenu && info.wID == static_cast<UINT>(reinterpret_cast<UINT_PTR>(info.hSubMenu));
        item.id = handleAsId ? 0 : info.wID;
        item.separator = (info.fType & MFT_SEPARATOR) != 0;
        if (!item.separator) item.text = ItemText(menu, position);
        if (info.hSubMenu) {
            item.popup = true;
            item.children = ReadMenu(info.hSubMenu);
        }
        items.push_back(std::move(item));
    }
    return items;
}

// The clipboard, open for as long as the object lives.
class OpenedClipboard {
public:
    OpenedClipboard() : open_(OpenClipboard(nullptr) != FALSE) {}
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    bool open() const { return open_; }

private:
    bool open_;
};

class Win32ResourceLibrary : public ResourceLibrary {
public:
    explicit Win32ResourceLibrary(HMODULE module) : module_(module) {}
    ~Win32ResourceLibrary() override { FreeLibrary(module_); }

    std::wstring LoadStringResource(uint32_t id) const override {
        // A buffer size of 0 hands back the resource itself, so nothing is cut short.
        const wchar_t* text = nullptr;
        int length = LoadStringW(module_, id, reinterpret_cast<LPWSTR>(&text), 0);
        return length > 0 && text ? std::wstring(text, length) : std::wstring();
    }

    std::optional<Menu> LoadMenuResource(uint32_t id) const override {
        OwnedMenu menu(LoadMenuW(module_, MAKEINTRESOURCEW(id)));
        if (!menu.get()) return std::nullopt;
        return ReadMenu(menu.get());
    }

private:
    HMODULE module_;
};

class Win32CodeLibrary : public CodeLibrary {
public:
    explicit Win32CodeLibrary(HMODULE module) : module_(module) {}
    ~Win32CodeLibrary() override { FreeLibrary(module_); }

    uintptr_t ExportAddress(const char* name) const override {
        return reinterpret_cast<uintptr_t>(GetProcAddress(module_, name));
    }

    std::wstring CallFillingText(uintptr_t function, size_t units) const override {
        using Filler = void(WINAPI*)(wchar_t*);
        std::vector<wchar_t> buffer(units + 1, L'\0');
        reinterpret_cast<Filler>(function)(buffer.data());
        // One unit more than offered, so that a text without its terminator still ends.
        buffer[units] = L'\0';
        return buffer.data();
    }

    void CallWithValue(uintptr_t function, uintptr_t value) const override {
        using Taker = void(WINAPI*)(void*);
        reinterpret_cast<Taker>(function)(reinterpret_cast<void*>(value));
    }

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

std::unique_ptr<ResourceLibrary> Win32System::LoadDataLibrary(const std::wstring& path) {
    HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_WITH_ALTERED_SEARCH_PATH);
    return module ? std::make_unique<Win32ResourceLibrary>(module) : nullptr;
}

LoadedLibrary Win32System::LoadCodeLibrary(const std::wstring& path) {
    SetLastError(0);
    HMODULE module = LoadLibraryW(path.c_str());
    if (!module) return {nullptr, GetLastError()};
    return {std::make_unique<Win32CodeLibrary>(module), 0};
}

void Win32System::FreeUnusedLibraries() {
    CoFreeUnusedLibrariesEx(0, 0);
}

bool Win32System::SetClipboardText(const std::wstring& text) {
    OpenedClipboard clipboard;
    if (!clipboard.open()) return false;
    EmptyClipboard();
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL block = GlobalAlloc(GMEM_DDESHARE, bytes);
    if (!block) return true;
    void* data = GlobalLock(block);
    if (data) {
        std::memcpy(data, text.c_str(), bytes);
        GlobalUnlock(block);
    }
    // Once the system has the block it is the system's; a block it refused is ours to free.
    if (!SetClipboardData(CF_UNICODETEXT, block)) GlobalFree(block);
    return true;
}

bool Win32System::ClipboardAnsiText(std::string& text) {
    OpenedClipboard clipboard;
    if (!clipboard.open()) return false;
    HANDLE block = GetClipboardData(CF_TEXT);
    if (!block) return false;
    const char* data = static_cast<const char*>(GlobalLock(block));
    if (!data) return false;
    const size_t size = GlobalSize(block);
    text.assign(data, strnlen(data, size));
    GlobalUnlock(block);
    return true;
}

}  // namespace platform::win32
