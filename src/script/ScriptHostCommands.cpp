#include "script/ScriptHostCommands.h"

#include <string>

#include "platform/Platform.h"
#include "script/HostText.h"
#include "script/ScriptControlFlow.h"
#include "services/CRuntime.h"
#include "services/Tokenizer.h"

namespace {

// Room enough for any path the system can name.
constexpr size_t kFullPathChars = 32768;

constexpr uint32_t kFavoriteJumpCode = 901;
constexpr uint32_t kUbJumpCode = 1003;
// Pane n of the folder jumps takes (n + 1) * 100, the file jumps 3 more.
constexpr uint32_t kPaneCodeStep = 100;
constexpr uint32_t kFileJumpOffset = 3;

bool HostIsThere(const ScriptFrame& frame) {
    return platform::Current().windows.IsWindow(frame.arguments.hostWindow);
}

// The text made absolute against the current directory, or left as it is when that fails.
std::wstring AbsolutePath(const std::wstring& path) {
    std::wstring full;
    return platform::Current().files.FullPathName(path, kFullPathChars, full) ? full : path;
}

void SendToHost(const ScriptFrame& frame, uint32_t code, const std::wstring& text) {
    if (HostIsThere(frame)) SendHostText(frame.arguments.hostWindow, code, text);
}

void SendIndexedToHost(const ScriptFrame& frame, uint32_t code, int32_t number, const std::wstring& text) {
    if (HostIsThere(frame)) SendHostIndexedText(frame.arguments.hostWindow, code, number, text);
}

LineOutcome SyntaxError(const ScriptLine& line, LineOutcome outcome) {
    ReportSyntaxError(line);
    return outcome;
}

// The jumps split at the first comma: the number left of it, the text right of it, both trimmed.
// Without a comma both are missing.
struct Jump {
    int32_t number;
    std::wstring text;
};

Jump ReadJump(const ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring value = CommandValue(frame, line, ValueForm::Expanded);
    return {crt::Wtoi(LeftOfSeparator(value, L',', true)), RightOfSeparator(value, L',', true)};
}

// A missing path ends the run; a pane that doesn't exist is only reported.
LineOutcome PaneJump(ScriptFrame& frame, const ScriptLine& line, uint32_t codeOffset) {
    const Jump jump = ReadJump(frame, line);
    if (jump.text.empty()) return SyntaxError(line, LineOutcome::EndOfScript);
    if (jump.number < 0 || jump.number > 3) return SyntaxError(line, LineOutcome::Next);
    SendToHost(frame, (static_cast<uint32_t>(jump.number) + 1) * kPaneCodeStep + codeOffset, AbsolutePath(jump.text));
    return LineOutcome::Next;
}

}  // namespace

LineOutcome RunHostMessage(ScriptFrame& frame, const ScriptLine& line, uint32_t message, Delivery delivery) {
    const std::wstring value = CommandValue(frame, line, ValueForm::Variables);
    if (value.empty()) return SyntaxError(line, LineOutcome::Next);
    // Each number stops at the comma.
    const int32_t first = crt::Wtoi(value);
    const size_t comma = value.find(L',');
    const int32_t second = comma == std::wstring::npos ? 0 : crt::Wtoi(value.substr(comma + 1));
    if (!HostIsThere(frame)) return LineOutcome::Next;
    if (first == 0) return SyntaxError(line, LineOutcome::Next);
    // A negative number reaches the host sign-extended, as the int it was.
    const auto wParam = static_cast<uintptr_t>(static_cast<intptr_t>(first));
    platform::HostWindows& windows = platform::Current().windows;
    if (delivery == Delivery::Post)
        windows.PostWindowMessage(frame.arguments.hostWindow, message, wParam, second);
    else
        windows.SendWindowMessage(frame.arguments.hostWindow, message, wParam, second);
    return LineOutcome::Next;
}

LineOutcome RunPostMessageTab(ScriptFrame& frame, const ScriptLine& line) {
    CommandValue(frame, line, ValueForm::Variables);
    return SyntaxError(line, LineOutcome::Next);
}

LineOutcome RunHostText(ScriptFrame& frame, const ScriptLine& line, uint32_t code, ValueForm form) {
    SendToHost(frame, code, CommandValue(frame, line, form));
    return LineOutcome::Next;
}

LineOutcome RunSystemCommand(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring value = CommandValue(frame, line, ValueForm::Expanded);
    const size_t comma = value.find(L',');
    const std::wstring code = crt::Trim(std::wstring_view(value).substr(0, comma));
    const std::wstring text =
        comma == std::wstring::npos ? std::wstring() : crt::Trim(std::wstring_view(value).substr(comma + 1));
    SendToHost(frame, static_cast<uint32_t>(crt::Wtoi(code)), text);
    return LineOutcome::Next;
}

LineOutcome RunFolderJump(ScriptFrame& frame, const ScriptLine& line) {
    return PaneJump(frame, line, 0);
}

LineOutcome RunFileJump(ScriptFrame& frame, const ScriptLine& line) {
    return PaneJump(frame, line, kFileJumpOffset);
}

// Slots 1 to 9, and 0 for the tenth.
LineOutcome RunFavoriteJump(ScriptFrame& frame, const ScriptLine& line) {
    const Jump jump = ReadJump(frame, line);
    if (static_cast<uint32_t>(jump.number) > 9 || jump.text.empty()) return SyntaxError(line, LineOutcome::EndOfScript);
    SendIndexedToHost(frame, kFavoriteJumpCode, jump.number == 0 ? 10 : jump.number, AbsolutePath(jump.text));
    return LineOutcome::Next;
}

// The script counts from 1, the host from 0.
LineOutcome RunUbJump(ScriptFrame& frame, const ScriptLine& line) {
    const Jump jump = ReadJump(frame, line);
    if (jump.number < 1 || jump.number > 10) return SyntaxError(line, LineOutcome::EndOfScript);
    SendIndexedToHost(frame, kUbJumpCode, jump.number - 1, jump.text);
    return LineOutcome::Next;
}
