#include "script/ScriptLaunchWords.h"

#include "script/LaunchRun.h"
#include "script/MacroExpansion.h"
#include "script/RunLine.h"
#include "script/ScriptCall.h"
#include "script/ScriptRunner.h"
#include "services/CRuntime.h"
#include "services/PathHelpers.h"
#include "settings/PathRoots.h"

namespace {

CallSettings CallSettingsOf(const ScriptFrame& frame) {
    const RunOptions& options = frame.runOptions;
    return {options.bootDir, frame.arguments.nowDirectory, options.showWindow, static_cast<uint32_t>(options.timeout),
            static_cast<uint32_t>(options.runWait)};
}

// Both forms expand and trim their command line before the process starts.
std::optional<std::wstring> Call(ScriptFrame& frame, CallKind kind, const std::wstring& commandLine) {
    return CallProgram(kind, frame.Expand(commandLine, true), CallSettingsOf(frame));
}

// A program that could not start still leaves a value: the command line, as for any empty result.
FunctionResult CallFunction(ScriptFrame& frame, CallKind kind, const std::wstring& commandLine) {
    return {Call(frame, kind, commandLine).value_or(std::wstring())};
}

// An "exrun" line starts nothing yet: it notes the program with the options of the moment.
void AddExRunEntry(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring programs =
        frame.Expand(ExpandDirectoryMacros(crt::Trim(line.value), frame.runner.directories()), true);
    if (programs.empty()) return;
    const RunOptions& options = frame.runOptions;
    std::wstring directory = options.bootDir;
    if (directory.empty())
        directory = frame.arguments.nowDirectory;
    else if (directory == kProgramsOwnDirectory)
        directory = DirectoryPart(StripSeparator(programs));
    frame.exRuns.push_back({programs, options.filter, options.commandLineOption, directory, options.bootMode});
}

}  // namespace

void RunDeferredLaunches(ScriptFrame& frame) {
    if (frame.exRuns.empty()) return;
    const SelectionList& items = *frame.arguments.selection;
    const RunOptions& options = frame.runOptions;
    // The items the script started with; a list that has shrunk since ends the whole run.
    for (int64_t index = 0; index < frame.selectedCountAtStart; ++index) {
        if (static_cast<size_t>(index) >= items.size()) throw ScriptInvalidArgument();
        const std::wstring item = items[static_cast<size_t>(index)];
        for (const ExRunEntry& entry : frame.exRuns) {
            std::wstring directory = entry.directory;
            if (directory.empty())
                directory = frame.arguments.nowDirectory;
            else if (directory == kProgramsOwnDirectory)
                directory = DirectoryPart(StripSeparator(entry.programs));
            else
                ExpandCommonMacros(frame.arguments.nowDirectory, frame.arguments.targetPath, directory,
                                   frame.runner.directories());
            const LaunchSettings settings{entry.launchMode, static_cast<uint32_t>(options.showWindow),
                                          static_cast<uint32_t>(options.timeout),
                                          static_cast<uint32_t>(options.runWait)};
            if (LaunchExRunEntry(entry.programs, item, directory, entry.argumentText, entry.filter, settings)) break;
        }
    }
}

bool RunCallStatement(ScriptFrame& frame, const ScriptLine& line) {
    CallKind kind;
    if (line.word == L"call")
        kind = CallKind::Call;
    else if (line.word == L"exec")
        kind = CallKind::Exec;
    else
        return false;
    Call(frame, kind, line.value);
    return true;
}

FunctionResult CallFunction(ScriptFrame& frame, const std::wstring& arguments) {
    return CallFunction(frame, CallKind::Call, arguments);
}

FunctionResult ExecFunction(ScriptFrame& frame, const std::wstring& arguments) {
    return CallFunction(frame, CallKind::Exec, arguments);
}

bool RunTargetStatement(ScriptFrame& frame, const ScriptLine& line) {
    if (line.word == L"exrun") {
        AddExRunEntry(frame, line);
        return true;
    }
    RunWord word;
    if (line.word == L"run")
        word = RunWord::Run;
    else if (line.word == L"shell")
        word = RunWord::Shell;
    else
        return false;
    RunLineContext context{
        frame.runner.directories(), frame.runner.messages(),
        *frame.arguments.selection, frame.arguments.nowDirectory,
        frame.arguments.hostWindow, [&frame](const std::wstring& text) { return frame.Expand(text, true); }};
    RunTargetLine(word, line.value, frame.runOptions, context);
    return true;
}
