// Environment for tests: variables, program path, folders, user and font, all settable.
#pragma once

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

    // Names ignore case; the name keeps the spelling it was first set with.
    void SetVariable(const std::wstring& name, const std::wstring& value);
    void RemoveVariable(const std::wstring& name);
    void SetModuleFileName(const std::wstring& path) { moduleFileName_ = path; }
    void SetIconTitleFont(const LogFont& font) { iconTitleFont_ = font; }
    // An empty text makes the call fail.
    void SetLocalAppDataFolder(const std::wstring& path) { localAppData_ = path; }
    void SetUserName(const std::wstring& name) { userName_ = name; }

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
};

}  // namespace platform::fake
