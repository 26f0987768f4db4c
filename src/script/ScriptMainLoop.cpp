#include "script/ScriptMainLoop.h"

#include <optional>

#include "script/ScriptCommands.h"
#include "script/ScriptControlFlow.h"
#include "script/ScriptRunner.h"
#include "script/ScriptSelectionCommands.h"
#include "script/ScriptStatement.h"
#include "script/ScriptTrace.h"
#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

// Lines that act even inside a block that is passed over.
std::optional<LineOutcome> RunUnskippable(ScriptFrame& frame, const std::wstring& lowered) {
    if (lowered == L"updatestate") return LineOutcome::Next;  // the host's state bar is not ours to update
    if (lowered == L"fileclose") {
        frame.outputFile.reset();
        return LineOutcome::Next;
    }
    if (lowered != L"removeselectitems") return std::nullopt;
    if (frame.ItemIndex != -1) return RefuseRemovalInLoop();
    frame.arguments.selection->clear();
    return LineOutcome::Next;
}

// The if machine: true when the line belongs to it or is passed over. An "else" or "endif" with no
// "if" open is left alone and ends up as a line nobody understands.
bool TakenByIf(ScriptFrame& frame, const ScriptLine& line, const std::wstring& lowered) {
    std::vector<uint32_t>& stack = frame.IfStack;
    const int64_t top = stack.empty() ? -1 : stack.back();
    const bool skipped = top == kIfThenOfFalse || top == kIfElseOfTrue || top == kIfInsideSkipped;
    if (top == kIfThenOfTrue && lowered == L"else") {
        stack.back() = kIfElseOfTrue;
        return true;
    }
    if (top == kIfElseOfTrue && line.keyword == L"if") {
        stack.push_back(kIfElseOfTrue);
        return true;
    }
    if ((top == kIfThenOfFalse || top == kIfInsideSkipped) && line.keyword == L"if") {
        stack.push_back(kIfInsideSkipped);
        return true;
    }
    if ((top == kIfThenOfFalse || top == kIfInsideSkipped) && lowered == L"else") {
        if (top == kIfThenOfFalse) stack.back() = kIfElseOfFalse;
        return true;
    }
    if (top == -1 || top > kIfInsideSkipped) return false;
    if (lowered == L"endif") {
        stack.pop_back();
        return true;
    }
    return skipped;
}

// The loop flags: reading on up to the line that ends the loop.
bool TakenBySkip(ScriptFrame& frame, const ScriptLine& line, const std::wstring& lowered) {
    if (frame.SkipToNext) {
        if (lowered == L"next") {
            frame.SkipToNext = false;
            frame.ItemIndex = -1;
            if (!frame.LoopKindStack.empty()) frame.LoopKindStack.pop_back();
        }
        return true;
    }
    if (frame.SkipToWhile) {
        if (line.keyword == L"while") {
            frame.SkipToWhile = false;
            if (!frame.LoopKindStack.empty()) frame.LoopKindStack.pop_back();
            if (!frame.DoReturnStack.empty()) frame.DoReturnStack.pop_back();
        }
        return true;
    }
    return false;
}

}  // namespace

LineOutcome RunMainLoop(ScriptFrame& frame) {
    frame.reader.ReadPosition = 0;
    while (frame.ReadLine()) {
#ifdef OPTION_SCRIPT_STEP_LIMIT
        if (++frame.runner.steps > OPTION_SCRIPT_STEP_LIMIT) return LineOutcome::EndAll;
#endif
        const LineOutcome outcome = RunLine(frame, MakeScriptLine(frame, frame.line()));
        if (outcome != LineOutcome::Next) return outcome;
    }
    return LineOutcome::EndOfScript;
}

LineOutcome RunLine(ScriptFrame& frame, const ScriptLine& line) {
    if (line.statement.empty() || line.statement.starts_with(L"//")) return LineOutcome::Next;
    const std::wstring lowered = crt::MakeLower(line.statement);
    if (lowered == L"debug") return LineOutcome::Next;
    // Before any skipping, so that "EOF" ends the script inside a block that is passed over too.
    if (lowered == L"eof") return LineOutcome::EndOfScript;
    if (const auto outcome = RunUnskippable(frame, lowered)) return *outcome;
    if (TakenByIf(frame, line, lowered) || TakenBySkip(frame, line, lowered)) return LineOutcome::Next;
    ReportTrace(frame.TraceWindow, kTraceLineNumber, crt::Format(L"%d", frame.reader.GetLineNumber()));
    if (lowered == L"exitall") return LineOutcome::EndAll;
    if (lowered == L"exit") return LineOutcome::Exit;
    if (line.keyword == L"var") return RunVar(frame, line);
    if (const auto outcome = RunControlWord(frame, line)) return *outcome;
    return RunStatement(frame, line);
}
