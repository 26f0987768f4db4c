#include "platform/win32/Win32ShellNamespace.h"

#include <windows.h>

#include <shlobj.h>
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
    PIDLIST_ABSOLUTE item = ILCreateFromPathW(parsingPath.c_str());
    if (!item) return std::nullopt;
    std::optional<std::wstring> name;
    IShellFolder* parent = nullptr;
    PCUITEMID_CHILD child = nullptr;
    if (SUCCEEDED(SHBindToParent(item, IID_IShellFolder, reinterpret_cast<void**>(&parent), &child))) {
        STRRET text = {};
        if (SUCCEEDED(parent->GetDisplayNameOf(child, SHGDN_INFOLDER, &text))) name = TakeText(text, child);
        parent->Release();
    }
    ILFree(item);
    // A name the shell leaves empty shows nothing; the caller shows the path instead.
    if (name && name->empty()) return std::nullopt;
    return name;
}

}  // namespace platform::win32
