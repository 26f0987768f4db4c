#include "script/VariableTable.h"

#include "platform/Platform.h"
#include "script/ReservedWords.h"
#include "script/ScriptTrace.h"
#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

// Enough for chains of names; a pair of variables naming each other stops here too.
constexpr int kMaxRounds = 10;

void Refuse(const std::wstring& text) { platform::Current().prompts.ShowMessage(text, platform::kStyleOk); }

// Substitution is blind to words, so no name may hold another or be held by one.
bool MayDeclare(const VariableTable& variables, const std::wstring& name) {
    if (IsReservedWord(name)) {
        Refuse(L"This word is reserved and can not be used as a variable.\n" + name);
        return false;
    }
    if (variables.Find(name)) {
        Refuse(L"It has already been declared.\n" + name);
        return false;
    }
    std::wstring overlap;
    variables.ForEach([&](const std::wstring& entry, const std::wstring&) {
        if (!overlap.empty()) return;
        if (entry.find(name) != std::wstring::npos) overlap = name + L"/" + entry;
        else if (name.find(entry) != std::wstring::npos) overlap = entry + L"/" + name;
    });
    if (overlap.empty()) return true;
    Refuse(L"It is contained in the variable declared.\n" + overlap);
    return false;
}

bool Enter(VariableTable& variables, const std::wstring& name, platform::WindowRef traceWindow) {
    if (!MayDeclare(variables, name)) return false;
    variables.Set(name, std::wstring());
    ReportTrace(traceWindow, kTraceVariable, name + L"\t");
    return true;
}

}  // namespace

#ifdef OPTION_SCRIPT_TEXT_LIMIT
void CheckScriptTextSize(size_t size) {
    if (size > OPTION_SCRIPT_TEXT_LIMIT) throw ScriptTextLimitReached();
}

namespace {

// The length text would have with every name in it replaced by value, worked out before it is made.
size_t GrownSize(const std::wstring& text, const std::wstring& name, const std::wstring& value) {
    if (name.empty() || value.size() <= name.size()) return text.size();
    size_t count = 0;
    for (size_t at = 0; (at = text.find(name, at)) != std::wstring::npos; at += name.size()) ++count;
    return text.size() + count * (value.size() - name.size());
}

}  // namespace
#endif

void ExpandVariables(const VariableTable& variables, std::wstring& text) {
    for (int round = 0; round < kMaxRounds && !variables.empty(); ++round) {
        bool replaced = false;
        variables.ForEach([&](const std::wstring& name, const std::wstring& value) {
#ifdef OPTION_SCRIPT_TEXT_LIMIT
            if (name != value) CheckScriptTextSize(GrownSize(text, name, value));
#endif
            if (name != value && crt::Replace(text, name, value) > 0) replaced = true;
        });
        if (!replaced) break;
    }
}

VariableName SplitVariableName(const std::wstring& name) {
    enum { kBase, kIndex, kBehind } state = kBase;
    bool malformed = false;
    VariableName split;
    for (wchar_t c : name) {
        if (c == L'[') state = kIndex;
        else if (c == L']') state = kBehind;
        else if (state == kBase) split.base += c;
        else if (state == kIndex) split.index += c;
        else malformed = true;
    }
    if (state == kIndex) malformed = true;
    if (malformed) return {crt::Trim(name), std::wstring()};
    return {crt::Trim(split.base), crt::Trim(split.index)};
}

int32_t DeclareVariable(VariableTable& variables, const std::wstring& text, platform::WindowRef traceWindow) {
    const std::wstring name = crt::Trim(text);
    if (name.empty()) return 0;
    const VariableName split = SplitVariableName(name);
    if (split.index.empty()) return Enter(variables, name, traceWindow) ? 1 : 0;
    const int32_t count = crt::Wtoi(split.index);
    // A text key, or 0, makes the one element it names.
    if (count == 0) return Enter(variables, crt::Format(L"%s[%s]", split.base, split.index), traceWindow) ? 1 : 0;
    if (count < 1) return 0;
#ifdef OPTION_SCRIPT_VARIABLE_LIMIT
    if (variables.size() + static_cast<size_t>(count) > OPTION_SCRIPT_VARIABLE_LIMIT) throw ScriptTextLimitReached();
#endif
    for (int32_t i = 0; i < count; ++i)
        if (!Enter(variables, crt::Format(L"%s[%d]", split.base, i), traceWindow)) return 0;
    return count;
}
