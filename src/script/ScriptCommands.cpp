#include "script/ScriptCommands.h"

#include "script/ScriptFileCommands.h"
#include "script/ScriptHostCommands.h"
#include "script/ScriptRunner.h"
#include "script/ScriptSelectionCommands.h"
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

// Tried in this order; no two words are the same, so the order decides nothing.
const Command kCommands[] = {
    {L"include", RunInclude},
    {L"fileopenmode", RunFileOpenMode},
    {L"bomout", RunByteOrderMarkOut},
    {L"fileopen", RunFileOpen},
    {L"filewritew", RunFileWriteWide},
    {L"filewritea", RunFileWriteAnsi},
    {L"postmessagetab", RunPostMessageTab},
    {L"postmessage1", HostMessageCommand<kHostMessage1, Delivery::Post>},
    {L"postmessage2", HostMessageCommand<kHostMessage2, Delivery::Post>},
    {L"postmessagebar", HostMessageCommand<kHostMessageBar, Delivery::Post>},
    {L"postwait", HostMessageCommand<kHostMessageWait, Delivery::Post>},
    {L"postmessage", HostMessageCommand<kHostCommand, Delivery::Post>},
    {L"postmessageall", HostMessageCommand<kHostMessageAll, Delivery::Post>},
    {L"sendmessage", HostMessageCommand<kHostCommand, Delivery::Send>},
    {L"sendmessageall", HostMessageCommand<kHostMessageAll, Delivery::Send>},
    {L"writeregnum", RunWriteRegNum},
    {L"writeregstring", RunWriteRegString},
    {L"system_command", RunSystemCommand},
    {L"speachflag", RunSpeechWord},
    {L"speachvolume", RunSpeechWord},
    {L"speachratespeed", RunSpeechWord},
    {L"speachpitch", RunSpeechWord},
    {L"setclipboardtext", RunSetClipboardText},
    {L"select", HostTextCommand<kHostSelect, ValueForm::Expanded>},
    {L"wait", RunWait},
    {L"filejump", RunFileJump},
    {L"folderjump", RunFolderJump},
    {L"favoritejump", RunFavoriteJump},
    {L"ubjump", RunUbJump},
    {L"fullstateopen", HostTextCommand<kHostFullState, ValueForm::Raw>},
    {L"fullstateopenex", HostTextCommand<kHostFullState, ValueForm::Expanded>},
    {L"backgroundimage", HostTextCommand<kHostBackgroundImage, ValueForm::Expanded>},
    {L"listinnerparam", HostTextCommand<kHostListInnerParam, ValueForm::Expanded>},
    {L"tabletmode", HostTextCommand<kHostTabletMode, ValueForm::Raw>},
    {L"operationmode", HostTextCommand<kHostOperationMode, ValueForm::Raw>},
    {L"appendselectitem", RunAppendSelectItem},
    {L"appendcsvselectitem", RunAppendCsvSelectItem},
    {L"getselectitems", RunGetSelectItems},
    {L"removeselectitems", RunRemoveSelectItems},
};

}  // namespace

std::wstring CommandValue(const ScriptFrame& frame, const ScriptLine& line, ValueForm form) {
    switch (form) {
        case ValueForm::Expanded:
            return frame.Expand(line.value, true);
        case ValueForm::Variables: {
            std::wstring value = line.value;
            ExpandVariables(*frame.arguments.variables, value);
            return value;
        }
        case ValueForm::Raw:
            return line.value;
        case ValueForm::RawLine:
            return frame.Expand(RightOfSeparator(line.raw, L'=', true), true);
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
