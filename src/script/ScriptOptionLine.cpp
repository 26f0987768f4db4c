#include "script/ScriptOptionLine.h"

#include "script/MacroExpansion.h"
#include "script/ScriptRunner.h"
#include "services/CRuntime.h"

namespace {

enum class Treatment {
    Ignored,      // the line is over
    CommandLine,  // item macros stay for the launch
    Path,         // variables and common macros, trimmed
    Filter,       // variables and common macros
    Number,       // expanded and trimmed, then read as a number
    Grammar,      // "0", "1", or an editor's command line
};

struct OptionLine {
    const wchar_t* word;
    Treatment treatment;
};

constexpr OptionLine kOptionLines[] = {
    {L"icon", Treatment::Ignored},          {L"commandlineoption", Treatment::CommandLine},
    {L"bootdir", Treatment::Path},          {L"bootmode", Treatment::Number},
    {L"showwindow", Treatment::Number},     {L"timeout", Treatment::Number},
    {L"runwait", Treatment::Number},        {L"sendinfomode", Treatment::Number},
    {L"multicommandmode", Treatment::Number}, {L"shiftsilentmode", Treatment::Number},
    {L"filter", Treatment::Filter},         {L"exitloopcount", Treatment::Number},
    {L"checkgrammar", Treatment::Grammar},
};

std::wstring CommonExpanded(const ScriptFrame& frame, std::wstring text) {
    ExpandVariables(*frame.arguments.variables, text);
    ExpandCommonMacros(frame.arguments.nowDirectory, frame.arguments.targetPath, text, frame.runner.directories());
    return text;
}

std::wstring GrammarText(const ScriptFrame& frame, const std::wstring& value) {
    const std::wstring text = frame.Expand(value, false);
    if (text.empty() || text == L"0") return L"0";
    if (text == L"1") return text;
    return frame.Expand(text, false);
}

void Set(ScriptFrame& frame, const std::wstring& key, const std::wstring& text) {
    SetRunOption(*frame.arguments.options, frame.runOptions, key, text);
}

}  // namespace

bool RunOptionLine(ScriptFrame& frame, const ScriptLine& line) {
    const uint32_t forced = frame.arguments.forcedOpenMode;
    if (forced != static_cast<uint32_t>(-1)) frame.runOptions.openMode = static_cast<int32_t>(forced);
    if (line.word == L"openmode") {
        if (forced == static_cast<uint32_t>(-1)) Set(frame, line.word, frame.Expand(line.value, true));
        return true;
    }
    for (const OptionLine& option : kOptionLines) {
        if (line.word != option.word) continue;
        switch (option.treatment) {
        case Treatment::Ignored: break;
        case Treatment::CommandLine:
            if (frame.arguments.allowCommandLine == 0) break;
            Set(frame, line.word,
                frame.arguments.selectionCommandLine ? L"?SelFile?" : CommonExpanded(frame, line.value));
            break;
        case Treatment::Path: Set(frame, line.word, crt::Trim(CommonExpanded(frame, line.value))); break;
        case Treatment::Filter: Set(frame, line.word, CommonExpanded(frame, line.value)); break;
        case Treatment::Number: Set(frame, line.word, frame.Expand(line.value, true)); break;
        case Treatment::Grammar: Set(frame, line.word, GrammarText(frame, line.value)); break;
        }
        return true;
    }
    return false;
}
