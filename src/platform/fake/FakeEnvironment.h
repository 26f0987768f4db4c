// Environment for tests: variables, program path and system directory, all settable.
#pragma once

#include <map>
#include <string>

#include "platform/Environment.h"

namespace platform::fake {

class FakeEnvironment : public Environment {
public:
    bool GetVariable(const std::wstring& name, std::wstring& value) override;
    std::wstring ModuleFileName() override { return moduleFileName_; }
    std::wstring SystemDirectory() override { return systemDirectory_; }
    LogFont IconTitleFont() override { return iconTitleFont_; }

    // Names ignore case; the name keeps the spelling it was first set with.
    void SetVariable(const std::wstring& name, const std::wstring& value);
    void RemoveVariable(const std::wstring& name);
    void SetModuleFileName(const std::wstring& path) { moduleFileName_ = path; }
    void SetSystemDirectory(const std::wstring& path) { systemDirectory_ = path; }
    void SetIconTitleFont(const LogFont& font) { iconTitleFont_ = font; }

private:
    struct Variable {
        std::wstring name;
        std::wstring value;
    };
    std::map<std::wstring, Variable> variables_;  // by upper-cased name
    std::wstring moduleFileName_ = L"C:\\Qor\\Tools\\Option\\Option.exe";
    std::wstring systemDirectory_ = L"C:\\Windows\\system32";
    LogFont iconTitleFont_;
};

}  // namespace platform::fake
