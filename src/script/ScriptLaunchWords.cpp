#include "script/ScriptLaunchWords.h"

#include "script/RunLine.h"
#include "script/ScriptCall.h"
#include "script/ScriptRunner.h"

bool RunCallStatement(ScriptFrame& frame, const ScriptLine& line) {
    CallKind kind;
    if (line.word == L"call")
        kind = CallKind::Call;
    else if (line.word == L"exec")
        kind = CallKind::Exec;
    else
        return false;
    const RunOptions& options = frame.runOptions;
    CallProgram(kind, frame.Expand(line.value, true),
                {options.bootDir, frame.arguments.nowDirectory, options.showWindow,
                 static_cast<uint32_t>(options.timeout), static_cast<uint32_t>(options.runWait)});
    return true;
}

bool RunTargetStatement(ScriptFrame& frame, const ScriptLine& line) {
    RunWord word;
    if (line.word == L"run")
        word = RunWord::Run;
    else if (line.word == L"shell")
        word = RunWord::Shell;
    else
        return false;
    RunLineContext context{frame.runner.directories(),
                           frame.runner.messages(),
                           *frame.arguments.selection,
                           frame.arguments.nowDirectory,
                           frame.arguments.hostWindow,
                           [&frame](const std::wstring& text) { return frame.Expand(text, true); }};
    RunTargetLine(word, line.value, frame.runOptions, context);
    return true;
}
