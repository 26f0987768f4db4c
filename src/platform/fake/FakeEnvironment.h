// Environment for tests: variables, program path, folders, user and font, all settable.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/Environment.h"

namespace platform::fake {

class FakeEnvironment : public Environment {
public:
    bool GetVariable(const std::wstring& name, std::wstring& value) override;
    std::wstring ModuleFileName() override { return moduleFileName_; }
    LogFont IconTitleFont() override { return iconTitleFont_; }
    bool LocalAppDataFolder(std::wstring& path) override { return Give(localAppData_, path); }
    bool UserName(std::wstring& name) override { return Give(userName_, name); }
    int64_t CurrentTime() override { return currentTime_; }
    // In the "C" locale, with local time the fixed offset from UTC.
    std::wstring FormatLocalTime(int64_t time, const std::wstring& format, size_t bufferChars) override;
    // The ANSI code page is Windows-1252, see CodePage1252.h.
    std::string ToAnsi(const std::wstring& text) override;
    std::wstring FromAnsi(const std::string& text) override;
    int32_t GetSystemMetrics(int32_t index) override;
    // A colour of its own for every index: 0x0A0B00 plus the index.
    int32_t SysColor(int32_t index) override { return 0x0A0B00 + index; }
    int32_t SystemVersion() override { return systemVersion_; }

    // Names ignore case; the name keeps the spelling it was first set with.
    void SetVariable(const std::wstring& name, const std::wstring& value);
    void SetModuleFileName(const std::wstring& path) { moduleFileName_ = path; }
    void SetIconTitleFont(const LogFont& font) { iconTitleFont_ = font; }
    // An empty text makes the call fail.
    void SetLocalAppDataFolder(const std::wstring& path) { localAppData_ = path; }
    void SetUserName(const std::wstring& name) { userName_ = name; }
    // The clock stands still at what it was set to.
    void SetCurrentTime(int64_t time) { currentTime_ = time; }
    void SetUtcOffset(int32_t seconds) { utcOffset_ = seconds; }
    // A screen of 1920 by 1080 (indexes 0 and 1) and 0 for the rest until set.
    void SetSystemMetric(int32_t index, int32_t value) { metrics_[index] = value; }
    void SetSystemVersion(int32_t version) { systemVersion_ = version; }

private:
    static bool Give(const std::wstring& value, std::wstring& out) {
        out = value;
        return !value.empty();
    }

    struct Variable {
        std::wstring name;
        std::wstring value;
    };
    std::map<std::wstring, Variable> variables_;  // by upper-cased name
    std::wstring moduleFileName_ = L"C:\\Qor\\Tools\\Option\\Option.exe";
    LogFont iconTitleFont_;
    std::wstring localAppData_ = L"C:\\Users\\tester\\AppData\\Local";
    std::wstring userName_ = L"tester";
    int64_t currentTime_ = 1709647629;  // 2024-03-05 14:07:09 UTC, a Tuesday
    int32_t utcOffset_ = 0;
    std::map<int32_t, int32_t> metrics_ = {{0, 1920}, {1, 1080}};
    int32_t systemVersion_ = 1000;
};

}  // namespace platform::fake
