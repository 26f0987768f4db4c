#include "script/ScriptRunner.h"

#include "platform/Platform.h"
#include "script/MacroExpansion.h"
#include "script/ScriptFirstPass.h"
#include "script/ScriptLaunchWords.h"
#include "script/ScriptMainLoop.h"
#include "script/ScriptTrace.h"

int32_t ScriptRunner::Run(std::wstring scriptPath, std::wstring nowDirectory, std::wstring targetPath,
                          SelectionList& selection, uint32_t forcedOpenMode, int allowCommandLine,
                          platform::WindowRef hostWindow, int selectionCommandLine, int reserved,
                          VariableTable* variables, RunOptionTable* options) {
    const ScriptArguments arguments{std::move(scriptPath),
                                    std::move(nowDirectory),
                                    std::move(targetPath),
                                    &selection,
                                    forcedOpenMode,
                                    allowCommandLine,
                                    hostWindow,
                                    selectionCommandLine,
                                    reserved,
                                    variables,
                                    options};
    try {
        return RunFrame(arguments);
    } catch (const ScriptInvalidArgument&) {
        // An item index off the end of the selection ends every frame at once.
        return 0;
    }
}

int32_t ScriptRunner::RunFrame(const ScriptArguments& arguments) {
    ScriptFrame frame(*this, arguments);
    const std::wstring& path = frame.arguments.scriptPath;
    if (!frame.reader.Open(path)) {
        platform::Current().prompts.ShowMessage(L"Cannot read " + path, platform::kStyleOk);
        return 0;
    }
    if (!RunFirstPass(frame)) return 0;
    ReportTrace(frame.TraceWindow, kTraceScriptPath, path);
    const LineOutcome outcome = RunMainLoop(frame);
    if (outcome == LineOutcome::EndAll) return -1;
    if (outcome == LineOutcome::EndOfScript) {
        // Closed first, so that a program started for an item may write the script.
        frame.reader.Close();
        RunDeferredLaunches(frame);
    }
    return 0;
}
