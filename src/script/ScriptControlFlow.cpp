#include "script/ScriptControlFlow.h"

#include "platform/Platform.h"
#include "script/ScriptCondition.h"
#include "services/Format.h"

namespace {

LineOutcome UsedWithout(const wchar_t* word, const wchar_t* needed, const ScriptLine& line, LineOutcome outcome) {
    ShowScriptMessage(crt::Format(L"'%s' was used without '%s'\n", word, needed) + line.statement);
    return outcome;
}

// The list may change under a loop, so the end is anything from its count on.
bool PastSelection(const ScriptFrame& frame) {
    return static_cast<size_t>(frame.ItemIndex) >= frame.arguments.selection->size();
}

LineOutcome For(ScriptFrame& frame) {
    frame.LoopKindStack.push_back(kLoopFor);
    if (frame.arguments.selection->empty()) {
        frame.SkipToNext = true;
        frame.ItemIndex = -1;
    } else {
        frame.ItemIndex = 0;
        frame.ForReturnOffset = frame.reader.NextLineOffset;
    }
    return LineOutcome::Next;
}

LineOutcome Next(ScriptFrame& frame, const ScriptLine& line) {
    if (frame.ItemIndex == -1) return UsedWithout(L"next", L"for", line, LineOutcome::Exit);
    ++frame.ItemIndex;
    if (PastSelection(frame)) {
        if (!frame.LoopKindStack.empty()) frame.LoopKindStack.pop_back();
        frame.ItemIndex = -1;
    } else {
        frame.SkipToNext = false;
        frame.reader.ReadPosition = frame.ForReturnOffset;
    }
    return LineOutcome::Next;
}

LineOutcome Do(ScriptFrame& frame) {
    frame.LoopKindStack.push_back(kLoopDo);
    frame.DoReturnStack.push_back(frame.reader.NextLineOffset);
    return LineOutcome::Next;
}

LineOutcome While(ScriptFrame& frame, const ScriptLine& line) {
    if (line.tokenCount < 2) return EndWithSyntaxError(line);
    if (frame.DoReturnStack.empty()) return UsedWithout(L"while", L"do", line, LineOutcome::Exit);
    frame.SkipToWhile = false;
    const int result = EvaluateCondition(line.statement.substr(6), frame);
    if (result == 0) return EndWithSyntaxError(line);
    if (result == 1) {
        frame.reader.ReadPosition = frame.DoReturnStack.back();
    } else {
        if (!frame.LoopKindStack.empty()) frame.LoopKindStack.pop_back();
        frame.DoReturnStack.pop_back();
    }
    return LineOutcome::Next;
}

// In a "do" loop it goes back without testing the condition.
LineOutcome Continue(ScriptFrame& frame, const ScriptLine& line) {
    if (frame.LoopKindStack.empty()) return UsedWithout(L"continue", L"do' or 'for", line, LineOutcome::Next);
    if (frame.LoopKindStack.back() == kLoopFor && frame.ItemIndex != -1) {
        ++frame.ItemIndex;
        if (PastSelection(frame)) {
            frame.SkipToNext = true;
            frame.ItemIndex = -1;
        } else {
            frame.reader.ReadPosition = frame.ForReturnOffset;
        }
    }
    if (frame.LoopKindStack.back() == kLoopDo && !frame.DoReturnStack.empty())
        frame.reader.ReadPosition = frame.DoReturnStack.back();
    return LineOutcome::Next;
}

LineOutcome Break(ScriptFrame& frame, const ScriptLine& line) {
    if (frame.LoopKindStack.empty()) return UsedWithout(L"break", L"do' or 'for", line, LineOutcome::Next);
    if (frame.LoopKindStack.back() == kLoopFor && frame.ItemIndex != -1) {
        frame.SkipToNext = true;
        frame.ItemIndex = -1;
    }
    if (frame.LoopKindStack.back() == kLoopDo && !frame.DoReturnStack.empty()) frame.SkipToWhile = true;
    return LineOutcome::Next;
}

// Only backward jumps count, for the whole run; loops and open "for" items are left as they are.
LineOutcome Goto(ScriptFrame& frame, const ScriptLine& line) {
    if (line.tokenCount < 2) return EndWithSyntaxError(line);
    const auto label = frame.labels.find(frame.Expand(line.statement.substr(4), true));
    if (label == frame.labels.end()) {
        ShowScriptMessage(L"Undefined label.\n" + line.statement);
        return LineOutcome::Exit;
    }
    if (frame.reader.LineStartOffset > label->second) ++frame.BackJumpCount;
    if (frame.BackJumpCount > frame.runOptions.exitLoopCount) {
        ShowScriptMessage(
            crt::Format(L"The number of repetitions of up too many.(%d times)", frame.runOptions.exitLoopCount));
        return LineOutcome::EndOfScript;
    }
    frame.reader.ReadPosition = label->second;
    frame.IfStack.clear();
    return LineOutcome::Next;
}

LineOutcome If(ScriptFrame& frame, const ScriptLine& line) {
    if (line.tokenCount < 2) return EndWithSyntaxError(line);
    const int result = EvaluateCondition(line.statement.substr(3), frame);
    if (result == 0) return EndWithSyntaxError(line);
    frame.IfStack.push_back(result == 1 ? kIfThenOfTrue : kIfThenOfFalse);
    return LineOutcome::Next;
}

}  // namespace

void ShowScriptMessage(const std::wstring& text) { platform::Current().prompts.ShowMessage(text, platform::kStyleOk); }

void ReportSyntaxError(const ScriptLine& line) {
    ShowScriptMessage(L"Syntax error!\n" + line.statement);
}

LineOutcome EndWithSyntaxError(const ScriptLine& line) {
    ReportSyntaxError(line);
    return LineOutcome::Exit;
}

std::optional<LineOutcome> RunControlWord(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring& keyword = line.keyword;
    if (keyword == L"for") return For(frame);
    if (keyword == L"next") return Next(frame, line);
    // A prefix with case, as it always was: "double = 1" opens a loop, "DO" doesn't.
    if (line.statement.starts_with(L"do")) return Do(frame);
    if (keyword == L"while") return While(frame, line);
    if (keyword == L"continue") return Continue(frame, line);
    if (keyword == L"break") return Break(frame, line);
    if (keyword == L"goto") return Goto(frame, line);
    if (keyword == L"if") return If(frame, line);
    return std::nullopt;
}
