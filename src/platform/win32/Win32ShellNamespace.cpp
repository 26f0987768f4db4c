#include "platform/win32/Win32ShellNamespace.h"

#include <windows.h>

#include <shlobj.h>
#include <shobjidl.h>
#include <shlwapi.h>

namespace platform::win32 {

namespace {

// Takes the text out of a STRRET and frees what the shell allocated for it.
std::optional<std::wstring> TakeText(STRRET& text, PCUITEMID_CHILD item) {
    wchar_t* plain = nullptr;
    if (FAILED(StrRetToStrW(&text, item, &plain))) return std::nullopt;
    std::wstring result = plain;
    CoTaskMemFree(plain);
    return result;
}

// The name of the item a path makes, as its parent folder gives it under these flags.
std::optional<std::wstring> DisplayName(const std::wstring& path, SHGDNF flags) {
    PIDLIST_ABSOLUTE item = ILCreateFromPathW(path.c_str());
    if (!item) return std::nullopt;
    std::optional<std::wstring> name;
    IShellFolder* parent = nullptr;
    PCUITEMID_CHILD child = nullptr;
    if (SUCCEEDED(SHBindToParent(item, IID_IShellFolder, reinterpret_cast<void**>(&parent), &child))) {
        STRRET text = {};
        if (SUCCEEDED(parent->GetDisplayNameOf(child, flags, &text))) name = TakeText(text, child);
        parent->Release();
    }
    ILFree(item);
    return name;
}

// "{...}" as COM writes a GUID, without the braces.
std::wstring IdText(const KNOWNFOLDERID& id) {
    wchar_t text[40] = {};
    const int written = StringFromGUID2(id, text, 40);
    if (written < 3) return L"";
    return std::wstring(text + 1, static_cast<size_t>(written) - 3);
}

// The canonical name of one known folder; nullopt when the manager cannot describe it.
std::optional<std::wstring> CanonicalName(IKnownFolderManager& manager, const KNOWNFOLDERID& id) {
    IKnownFolder* folder = nullptr;
    if (FAILED(manager.GetFolder(id, &folder))) return std::nullopt;
    std::optional<std::wstring> name;
    KNOWNFOLDER_DEFINITION definition = {};
    if (SUCCEEDED(folder->GetFolderDefinition(&definition))) {
        if (definition.pszName) name = definition.pszName;
        FreeKnownFolderDefinitionFields(&definition);
    }
    folder->Release();
    return name;
}

// The known-folder manager, or null when it cannot be made; the caller releases it.
IKnownFolderManager* MakeManager() {
    IKnownFolderManager* manager = nullptr;
    if (FAILED(CoCreateInstance(CLSID_KnownFolderManager, nullptr, CLSCTX_INPROC_SERVER, IID_IKnownFolderManager,
                                reinterpret_cast<void**>(&manager))))
        return nullptr;
    return manager;
}

}  // namespace

std::vector<ShellColumn> Win32ShellNamespace::DesktopColumns() {
    std::vector<ShellColumn> columns;
    IShellFolder* desktop = nullptr;
    if (FAILED(SHGetDesktopFolder(&desktop))) return columns;
    IShellFolder2* details = nullptr;
    if (SUCCEEDED(desktop->QueryInterface(IID_IShellFolder2, reinterpret_cast<void**>(&details)))) {
        SHELLDETAILS column = {};
        for (UINT i = 0; SUCCEEDED(details->GetDetailsOf(nullptr, i, &column)); ++i) {
            columns.push_back({TakeText(column.str, nullptr).value_or(L""), column.cxChar});
            column = {};
        }
        details->Release();
    }
    desktop->Release();
    return columns;
}

std::optional<std::wstring> Win32ShellNamespace::InFolderName(const std::wstring& parsingPath) {
    std::optional<std::wstring> name = DisplayName(parsingPath, SHGDN_INFOLDER);
    // A name the shell leaves empty shows nothing; the caller shows the path instead.
    if (name && name->empty()) return std::nullopt;
    return name;
}

std::optional<std::wstring> Win32ShellNamespace::AddressBarName(const std::wstring& path) {
    return DisplayName(path, SHGDN_FORADDRESSBAR);
}

std::vector<KnownFolder> Win32ShellNamespace::KnownFolders() {
    std::vector<KnownFolder> folders;
    IKnownFolderManager* manager = MakeManager();
    if (!manager) return folders;
    KNOWNFOLDERID* ids = nullptr;
    UINT count = 0;
    if (SUCCEEDED(manager->GetFolderIds(&ids, &count))) {
        for (UINT i = 0; i < count; ++i) {
            std::optional<std::wstring> name = CanonicalName(*manager, ids[i]);
            std::wstring id = IdText(ids[i]);
            if (name && !id.empty()) folders.push_back({std::move(id), std::move(*name)});
        }
        CoTaskMemFree(ids);
    }
    manager->Release();
    return folders;
}

std::optional<std::wstring> Win32ShellNamespace::KnownFolderName(const std::wstring& id) {
    KNOWNFOLDERID folderId = {};
    const std::wstring braced = L"{" + id + L"}";
    if (FAILED(IIDFromString(braced.c_str(), &folderId))) return std::nullopt;
    IKnownFolderManager* manager = MakeManager();
    if (!manager) return std::nullopt;
    std::optional<std::wstring> name = CanonicalName(*manager, folderId);
    manager->Release();
    return name;
}

}  // namespace platform::win32
