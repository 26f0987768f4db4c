#include "platform/fake/FakeEnvironment.h"

#include "platform/fake/CaseFold.h"
#include "platform/fake/CLocaleTime.h"
#include "platform/fake/CodePage1252.h"

namespace platform::fake {

bool FakeEnvironment::GetVariable(const std::wstring& name, std::wstring& value) {
    auto it = variables_.find(UpperCase(name));
    if (it == variables_.end()) {
        value.clear();
        return false;
    }
    value = it->second.value;
    return true;
}

void FakeEnvironment::SetVariable(const std::wstring& name, const std::wstring& value) {
    auto [it, added] = variables_.try_emplace(UpperCase(name), Variable{name, value});
    if (!added) it->second.value = value;
}

std::wstring FakeEnvironment::FormatLocalTime(int64_t time, const std::wstring& format, size_t bufferChars) {
    return FormatCLocaleTime(time + utcOffset_, format, bufferChars);
}

std::string FakeEnvironment::ToAnsi(const std::wstring& text) {
    return ToCodePage1252(text);
}

std::wstring FakeEnvironment::FromAnsi(const std::string& text) {
    return FromCodePage1252(text);
}

int32_t FakeEnvironment::GetSystemMetrics(int32_t index) {
    auto found = metrics_.find(index);
    return found == metrics_.end() ? 0 : found->second;
}

}  // namespace platform::fake
