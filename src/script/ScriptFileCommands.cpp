#include "script/ScriptFileCommands.h"

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "script/ScriptCommands.h"
#include "script/ScriptControlFlow.h"
#include "services/LongPath.h"
#include "services/WideStream.h"

namespace {

constexpr const wchar_t* kFileNotOpen = L"File is not open.";

// Any value but exactly "0" sets a flag, the empty one included.
bool FlagValue(const ScriptFrame& frame, const ScriptLine& line) {
    return CommandValue(frame, line, ValueForm::Expanded) != L"0";
}

}  // namespace

LineOutcome RunFileOpenMode(ScriptFrame& frame, const ScriptLine& line) {
    frame.truncateNextOpen = FlagValue(frame, line);
    return LineOutcome::Next;
}

LineOutcome RunByteOrderMarkOut(ScriptFrame& frame, const ScriptLine& line) {
    frame.writeByteOrderMark = FlagValue(frame, line);
    return LineOutcome::Next;
}

// The file is shut to everyone else while it is open, the script's own fileread included. A failure
// is told but doesn't stop the script; its later writes say the file is not open.
LineOutcome RunFileOpen(ScriptFrame& frame, const ScriptLine& line) {
    frame.outputFile.reset();
    const std::wstring path = CommandValue(frame, line, ValueForm::Expanded);
    const platform::FileAccess access =
        frame.truncateNextOpen ? platform::FileAccess::Write : platform::FileAccess::Append;
    frame.truncateNextOpen = false;
    platform::Platform& os = platform::Current();
    uint32_t error = 0;
    frame.outputFile = os.files.OpenDenyAll(ToLongPathForm(path), access, error);
    if (!frame.outputFile && error != 0) ShowScriptMessage(path + L"\n" + os.processes.ErrorText(error));
    return LineOutcome::Next;
}

LineOutcome RunFileWriteWide(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring text = CommandValue(frame, line, ValueForm::RawLine) + L"\r\n";
    const bool mark = frame.writeByteOrderMark;
    frame.writeByteOrderMark = false;
    if (!frame.outputFile) {
        ShowScriptMessage(kFileNotOpen);
        return LineOutcome::Next;
    }
    std::vector<uint8_t> bytes;
    AppendUtf16(bytes, mark ? L"\xFEFF" + text : text);
    frame.outputFile->Write(bytes.data(), bytes.size());
    return LineOutcome::Next;
}

LineOutcome RunFileWriteAnsi(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring text = CommandValue(frame, line, ValueForm::RawLine) + L"\r\n";
    if (!frame.outputFile) {
        ShowScriptMessage(kFileNotOpen);
        return LineOutcome::Next;
    }
    const std::string bytes = platform::Current().environment.ToAnsi(text);
    frame.outputFile->Write(bytes.data(), bytes.size());
    return LineOutcome::Next;
}
