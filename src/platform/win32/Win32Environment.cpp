#include "platform/win32/Win32Environment.h"

#include <windows.h>
#include <shlobj.h>

#include <algorithm>
#include <ctime>
#include <iterator>
#include <vector>

namespace platform::win32 {

bool Win32Environment::GetVariable(const std::wstring& name, std::wstring& value) {
    std::vector<wchar_t> buffer(256);
    for (;;) {
        SetLastError(0);
        DWORD length = GetEnvironmentVariableW(name.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) {
            value.clear();
            return GetLastError() != ERROR_ENVVAR_NOT_FOUND;
        }
        if (length < buffer.size()) {
            value.assign(buffer.data(), length);
            return true;
        }
        buffer.resize(length);
    }
}

std::wstring Win32Environment::ModuleFileName() {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length < buffer.size()) return std::wstring(buffer.data(), length);
        buffer.resize(buffer.size() * 2);
    }
}

LogFont Win32Environment::IconTitleFont() {
    LOGFONTW system = {};
    SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof system, &system, 0);
    LogFont font;
    font.lfHeight = system.lfHeight;
    font.lfWidth = system.lfWidth;
    font.lfEscapement = system.lfEscapement;
    font.lfOrientation = system.lfOrientation;
    font.lfWeight = system.lfWeight;
    font.lfItalic = system.lfItalic;
    font.lfUnderline = system.lfUnderline;
    font.lfStrikeOut = system.lfStrikeOut;
    font.lfCharSet = system.lfCharSet;
    font.lfOutPrecision = system.lfOutPrecision;
    font.lfClipPrecision = system.lfClipPrecision;
    font.lfQuality = system.lfQuality;
    font.lfPitchAndFamily = system.lfPitchAndFamily;
    std::copy(std::begin(system.lfFaceName), std::end(system.lfFaceName), font.lfFaceName);
    return font;
}

bool Win32Environment::LocalAppDataFolder(std::wstring& path) {
    wchar_t buffer[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(nullptr, buffer, CSIDL_LOCAL_APPDATA, FALSE)) return false;
    path = buffer;
    return true;
}

bool Win32Environment::UserName(std::wstring& name) {
    wchar_t buffer[256] = {};
    DWORD length = 256;
    if (!GetUserNameW(buffer, &length)) return false;
    name = buffer;
    return true;
}

int64_t Win32Environment::CurrentTime() {
    return _time64(nullptr);
}

std::wstring Win32Environment::FormatLocalTime(int64_t time, const std::wstring& format, size_t bufferChars) {
    const __time64_t value = time;
    struct tm local = {};
    if (_localtime64_s(&local, &value) != 0 || bufferChars == 0) return std::wstring();
    std::vector<wchar_t> buffer(bufferChars, 0);
    size_t length = wcsftime(buffer.data(), buffer.size(), format.c_str(), &local);
    return std::wstring(buffer.data(), length);
}

std::string Win32Environment::ToAnsi(const std::wstring& text) {
    if (text.empty()) return std::string();
    const int length = static_cast<int>(text.size());
    int bytes = WideCharToMultiByte(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string converted(bytes > 0 ? bytes : 0, '\0');
    if (bytes > 0)
        WideCharToMultiByte(CP_THREAD_ACP, 0, text.data(), length, converted.data(), bytes, nullptr, nullptr);
    return converted;
}

std::wstring Win32Environment::FromAnsi(const std::string& text) {
    if (text.empty()) return std::wstring();
    const int length = static_cast<int>(text.size());
    int units = MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0);
    std::wstring converted(units > 0 ? units : 0, L'\0');
    if (units > 0) MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, converted.data(), units);
    return converted;
}

int32_t Win32Environment::GetSystemMetrics(int32_t index) {
    return ::GetSystemMetrics(index);
}

int32_t Win32Environment::SysColor(int32_t index) {
    return static_cast<int32_t>(::GetSysColor(index));
}

// GetVersionExW answers what the manifest admits to; the kernel's own call does not.
int32_t Win32Environment::SystemVersion() {
    using GetVersionCall = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    auto call = ntdll
                    ? reinterpret_cast<GetVersionCall>(reinterpret_cast<void*>(GetProcAddress(ntdll, "RtlGetVersion")))
                    : nullptr;
    if (!call || call(&info) != 0) return 0;
    return static_cast<int32_t>(info.dwMajorVersion * 100 + info.dwMinorVersion);
}

std::wstring ProgramName() {
    std::wstring path = Win32Environment().ModuleFileName();
    size_t slash = path.find_last_of(L'\\');
    std::wstring name = slash == std::wstring::npos ? path : path.substr(slash + 1);
    size_t dot = name.find_last_of(L'.');
    return dot == std::wstring::npos ? name : name.substr(0, dot);
}

}  // namespace platform::win32
