#include "script/ScriptSystemCommands.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "script/ScriptCommands.h"
#include "script/ScriptControlFlow.h"
#include "script/ScriptFields.h"
#include "script/ScriptNumbers.h"
#include "services/CRuntime.h"
#include "services/WideStream.h"

namespace {

// Scripts write beneath the host's own settings.
constexpr const wchar_t* kScriptRegistryKey = L"Software\\Tarnwick\\Qor\\Main001\\";

// The key and the value's name popped off the front of the fields; an empty one of them stops the
// command before anything is created.
struct RegistryTarget {
    std::wstring key;
    std::wstring name;
};

bool PopRegistryTarget(std::wstring& fields, RegistryTarget& target) {
    target.key = PopField(fields);
    if (target.key.empty()) return false;
    target.name = PopField(fields);
    return !target.name.empty();
}

// Failures of the registry are not the script's business.
void SetScriptValue(const RegistryTarget& target, uint32_t type, const std::vector<uint8_t>& bytes, uint32_t size) {
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.CreateKey(kScriptRegistryKey + target.key, key) != platform::kRegistryOk) return;
    key->SetValue(target.name, type, bytes.data(), size);
}

}  // namespace

LineOutcome RunWriteRegNum(ScriptFrame& frame, const ScriptLine& line) {
    std::wstring fields = CommandValue(frame, line, ValueForm::Raw);
    RegistryTarget target;
    if (!PopRegistryTarget(fields, target)) return LineOutcome::Next;
    const std::wstring number = PopField(fields);
    if (number.empty()) return LineOutcome::Next;
    // "0x10" writes 16.
    const auto value = static_cast<uint32_t>(crt::Wtoi(NormalisedNumberText(number)));
    std::vector<uint8_t> bytes;
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
    SetScriptValue(target, platform::kRegDword, bytes, 4);
    return LineOutcome::Next;
}

LineOutcome RunWriteRegString(ScriptFrame& frame, const ScriptLine& line) {
    std::wstring fields = CommandValue(frame, line, ValueForm::Raw);
    RegistryTarget target;
    if (!PopRegistryTarget(fields, target) || fields.empty()) return LineOutcome::Next;
    // The count leaves the terminator out; it still sits behind the text, where the system looks for it.
    std::vector<uint8_t> bytes;
    AppendUtf16(bytes, fields + L'\0');
    SetScriptValue(target, platform::kRegSz, bytes, static_cast<uint32_t>(bytes.size() - 2));
    return LineOutcome::Next;
}

// There is no voice here: a value is needed, and that is all.
LineOutcome RunSpeechWord(ScriptFrame& frame, const ScriptLine& line) {
    if (CommandValue(frame, line, ValueForm::Expanded).empty()) ReportSyntaxError(line);
    return LineOutcome::Next;
}

LineOutcome RunSetClipboardText(ScriptFrame& frame, const ScriptLine& line) {
    platform::Current().system.SetClipboardText(CommandValue(frame, line, ValueForm::Expanded));
    return LineOutcome::Next;
}

LineOutcome RunWait(ScriptFrame& frame, const ScriptLine& line) {
    const int32_t milliseconds = crt::Wtoi(CommandValue(frame, line, ValueForm::Expanded));
    if (milliseconds != 0) platform::Current().processes.Sleep(static_cast<uint32_t>(milliseconds));
    return LineOutcome::Next;
}
