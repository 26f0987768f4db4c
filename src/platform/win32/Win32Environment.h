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
};

// The running program's file name without directory and extension ("Option").
std::wstring ProgramName();

}  // namespace platform::win32
