// Process environment: variables and the program's own place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/LogFont.h"

namespace platform {

class Environment {
public:
    Environment() = default;
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    virtual ~Environment() = default;

    // As GetEnvironmentVariableW: false when the variable is not defined. Names ignore case.
    virtual bool GetVariable(const std::wstring& name, std::wstring& value) = 0;
    // Full path of the running program (GetModuleFileNameW of the process).
    virtual std::wstring ModuleFileName() = 0;
    // SHGetSpecialFolderPathW of the local application data folder, without creating it.
    virtual bool LocalAppDataFolder(std::wstring& path) = 0;
    // GetUserNameW with a buffer of 256 characters.
    virtual bool UserName(std::wstring& name) = 0;
    // The font of icon titles (SPI_GETICONTITLELOGFONT): the default of every font setting.
    virtual LogFont IconTitleFont() = 0;
    // _time64: seconds since 1970-01-01 00:00 UTC.
    virtual int64_t CurrentTime() = 0;
    // wcsftime of the local time at `time` into a buffer of bufferChars characters, in the C runtime's
    // locale of the moment; empty when the format yields nothing or the result does not fit.
    virtual std::wstring FormatLocalTime(int64_t time, const std::wstring& format, size_t bufferChars) = 0;
    // WideCharToMultiByte and MultiByteToWideChar with the calling thread's ANSI code page and no
    // flags: a character the code page lacks becomes its default character.
    virtual std::string ToAnsi(const std::wstring& text) = 0;
    virtual std::wstring FromAnsi(const std::string& text) = 0;
    // GetSystemMetrics of the index; 0 for an index the system does not know.
    virtual int32_t GetSystemMetrics(int32_t index) = 0;
    // GetSysColor of the index, a COLORREF.
    virtual int32_t SysColor(int32_t index) = 0;
    // The version of the running system as major * 100 + minor (601 for 6.1), as it really is, not as
    // the compatibility layer would tell an older program.
    virtual int32_t SystemVersion() = 0;
};

}  // namespace platform
