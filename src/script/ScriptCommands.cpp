#include "script/ScriptCommands.h"

#include "script/ScriptFileCommands.h"
#include "script/ScriptRunner.h"
#include "script/ScriptSystemCommands.h"
#include "script/ScriptTrace.h"
#include "services/Format.h"
#include "services/Tokenizer.h"

namespace {

// Runs another script at this point. It shares the variables, the run options and the selection
// and has everything else of its own, its labels and loops, and no item of ours.
LineOutcome RunInclude(ScriptFrame& frame, const ScriptLine& line) {
    ScriptArguments child = frame.arguments;
    child.scriptPath = frame.Expand(line.value, true);
    if (frame.runner.RunFrame(child) == -1) return LineOutcome::EndAll;
    ReportTrace(frame.TraceWindow, kTraceScriptPath, frame.arguments.scriptPath);
    ReportTrace(frame.TraceWindow, kTraceLineNumber, crt::Format(L"%d", frame.reader.GetLineNumber()));
    frame.ReadRunOptions();
    return LineOutcome::Next;
}

struct Command {
    const wchar_t* word;
    LineOutcome (*run)(ScriptFrame& frame, const ScriptLine& line);
};

const Command kCommands[] = {
    {L"include", RunInclude},
    {L"fileopenmode", RunFileOpenMode},
    {L"bomout", RunByteOrderMarkOut},
    {L"fileopen", RunFileOpen},
    {L"filewritew", RunFileWriteWide},
    {L"filewritea", RunFileWriteAnsi},
    {L"writeregnum", RunWriteRegNum},
    {L"writeregstring", RunWriteRegString},
    {L"speachflag", RunSpeechWord},
    {L"speachvolume", RunSpeechWord},
    {L"speachratespeed", RunSpeechWord},
    {L"speachpitch", RunSpeechWord},
    {L"setclipboardtext", RunSetClipboardText},
    {L"wait", RunWait},
};

}  // namespace

std::wstring CommandValue(const ScriptFrame& frame, const ScriptLine& line, ValueForm form) {
    switch (form) {
    case ValueForm::Expanded: return frame.Expand(line.value, true);
    case ValueForm::Variables: {
        std::wstring value = line.value;
        ExpandVariables(*frame.arguments.variables, value);
        return value;
    }
    case ValueForm::Raw: return line.value;
    case ValueForm::RawLine: return frame.Expand(RightOfSeparator(line.raw, L'=', true), true);
    }
    return line.value;
}

bool RunCommand(ScriptFrame& frame, const ScriptLine& line, LineOutcome& outcome) {
    for (const Command& command : kCommands) {
        if (line.word != command.word) continue;
        outcome = command.run(frame, line);
        return true;
    }
    return false;
}
