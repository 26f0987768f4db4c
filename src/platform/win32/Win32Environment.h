#pragma once

#include "platform/Environment.h"

namespace platform::win32 {

class Win32Environment : public Environment {
public:
    bool GetVariable(const std::wstring& name, std::wstring& value) override;
    std::wstring ModuleFileName() override;
    LogFont IconTitleFont() override;
    bool LocalAppDataFolder(std::wstring& path) override;
    bool UserName(std::wstring& name) override;
    int64_t CurrentTime() override;
    std::wstring FormatLocalTime(int64_t time, const std::wstring& format, size_t bufferChars) override;
    std::string ToAnsi(const std::wstring& text) override;
    std::wstring FromAnsi(const std::string& text) override;
    int32_t GetSystemMetrics(int32_t index) override;
    int32_t SysColor(int32_t index) override;
    int32_t SystemVersion() override;
};

// The running program's file name without directory and extension ("Option").
std::wstring ProgramName();

}  // namespace platform::win32
