#include "script/ScriptMessageBoxes.h"

#include "platform/Platform.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFields.h"
#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

// MB_ICONEXCLAMATION, and MB_YESNO with MB_ICONQUESTION.
constexpr unsigned kOkFlags = 48;
constexpr unsigned kYesNoFlags = 36;

// The host's window as it is now: it may have come or gone since the script started.
int ShowBox(const std::wstring& text, unsigned flags) {
    platform::Platform& os = platform::Current();
    return os.prompts.ShowOwnedMessage(os.windows.FindHostWindow(), text, L"Qor", flags);
}

// Decimal, or with an "x" in it hexadecimal ("0x30") or octal by its leading zero.
unsigned BoxFlags(const std::wstring& field) {
    const std::wstring lowered = crt::MakeLower(field);
    const int32_t flags =
        lowered.find(L'x') == std::wstring::npos ? crt::Wtoi(lowered) : crt::Wcstol(lowered.c_str(), nullptr, 0);
    return static_cast<unsigned>(flags);
}

FunctionResult ButtonPressed(int button) {
    return {crt::Format(L"%d", button)};
}

}  // namespace

std::optional<LineOutcome> RunMessageBoxStatement(ScriptFrame& frame, const ScriptLine& line) {
    if (line.word == L"messagebox") {
        // The flags are read as written; only the text has its variables and macros put in.
        std::wstring value = line.value;
        if (value.find(L',') == std::wstring::npos) return std::nullopt;
        const unsigned flags = BoxFlags(PopField(value));
        ShowBox(frame.Expand(value, true), flags);
        return LineOutcome::Next;
    }
    if (line.word == L"messageboxok") {
        ShowBox(CommandValue(frame, line, ValueForm::Expanded), kOkFlags);
        return LineOutcome::Next;
    }
    if (line.word == L"messageboxyn") {
        const int button = ShowBox(CommandValue(frame, line, ValueForm::Expanded), kYesNoFlags);
        return button == platform::kAnswerNo ? LineOutcome::Exit : LineOutcome::Next;
    }
    return std::nullopt;
}

FunctionResult MessageBoxFunction(ScriptFrame&, const std::wstring& arguments) {
    std::wstring text = arguments;
    const unsigned flags = BoxFlags(PopField(text));
    return ButtonPressed(ShowBox(text, flags));
}

FunctionResult MessageBoxOkFunction(ScriptFrame&, const std::wstring& arguments) {
    return ButtonPressed(ShowBox(arguments, kOkFlags));
}

FunctionResult MessageBoxYnFunction(ScriptFrame&, const std::wstring& arguments) {
    return ButtonPressed(ShowBox(arguments, kYesNoFlags));
}
