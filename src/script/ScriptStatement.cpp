#include "script/ScriptStatement.h"

#include "platform/Platform.h"
#include "script/ScriptAssignment.h"
#include "script/ScriptCommands.h"
#include "script/ScriptControlFlow.h"
#include "script/ScriptLaunchWords.h"
#include "script/ScriptMessageBoxes.h"
#include "script/ScriptOptionLine.h"
#include "script/ScriptRunner.h"
#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/MessageCatalog.h"
#include "services/MessageIds.h"
#include "services/Tokenizer.h"

namespace {

// The checkgrammar option, when it is neither "0" nor "1", is the command line of the user's editor:
// it opens the script at the line not understood. The script is closed first so the editor may write it.
void OpenScriptInEditor(ScriptFrame& frame, const std::wstring& editor) {
    const std::wstring lineNumber = crt::Format(L"%d", frame.reader.GetLineNumber());
    frame.reader.Close();
    std::wstring commandLine = editor;
    crt::Replace(commandLine, L"?ErrorLine?", lineNumber);
    platform::Platform& os = platform::Current();
    platform::ProcessStart start{commandLine, L"", false, 0, 0, true};
    uint32_t error = 0;
    if (!os.processes.Start(start, error)) {
        os.prompts.ShowMessage(frame.runner.messages().Get(kMsgCannotStartProgram) + L"\n" + editor,
                               platform::kStyleOk);
    }
}

// A label line is known to the first pass; anything else unclaimed is asked about only when the
// checkgrammar option is on.
LineOutcome RunUnknown(ScriptFrame& frame, const ScriptLine& line) {
    const std::wstring& statement = line.statement;
    if (statement.back() == L':' &&
        frame.labels.contains(crt::Trim(std::wstring_view(statement).substr(0, statement.size() - 1))))
        return LineOutcome::Next;
    const std::wstring& grammar = frame.runOptions.checkGrammar;
    if (grammar.empty() || grammar == L"0") return LineOutcome::Next;
    const std::wstring question =
        crt::Format(L"This is the line that I do not understand.\nDo you want to continue?\n%d:%s",
                    frame.reader.GetLineNumber(), statement);
    platform::Platform& os = platform::Current();
    if (os.prompts.ShowMessage(question, platform::kStyleYesNo) == platform::kAnswerYes) return LineOutcome::Next;
    if (grammar != L"1") OpenScriptInEditor(frame, grammar);
    return LineOutcome::Exit;
}

}  // namespace

LineOutcome RunVar(ScriptFrame& frame, const ScriptLine& line) {
    if (line.tokenCount < 2) return EndWithSyntaxError(line);
    const std::wstring text = crt::Trim(std::wstring_view(line.statement).substr(3));
    const size_t equals = text.find(L'=');
    const std::wstring name = equals == std::wstring::npos ? text : text.substr(0, equals);
    if (DeclareVariable(*frame.arguments.variables, name, frame.TraceWindow) == 0) return LineOutcome::Exit;
    if (equals == std::wstring::npos) return LineOutcome::Next;
    // The spaced line still holds the whole line, so its first equals sign is still the one.
    ScriptLine rest = line;
    rest.statement = text;
    rest.word = LeftOfSeparator(text, L'=', true);
    rest.value = RightOfSeparator(text, L'=', true);
    return RunStatement(frame, rest);
}

LineOutcome RunStatement(ScriptFrame& frame, const ScriptLine& line) {
    if (RunOptionLine(frame, line)) return LineOutcome::Next;
    std::optional<AssignmentRight> right;
    std::optional<WorkedOutAssignment> assignment;
    if (const auto name = AssignedName(frame, line.statement)) {
        right = ReadAssignmentRight(frame, *name, line);
        if (!right->afterCommands()) {
            assignment = WorkOutAssignment(frame, *right);
            if (!assignment) return LineOutcome::EndOfScript;
        }
    }
    // A command word wins over a variable of the same name: its assignment is lost.
    LineOutcome outcome = LineOutcome::Next;
    if (RunCommand(frame, line, outcome)) return outcome;
    if (right && right->afterCommands()) {
        assignment = WorkOutAssignment(frame, *right);
        if (!assignment) return LineOutcome::EndOfScript;
    }
    const std::optional<LineOutcome> box = RunMessageBoxStatement(frame, line);
    if (box && *box != LineOutcome::Next) return *box;
    const bool called = box.has_value() || RunCallStatement(frame, line);
    if (assignment) {
        StoreAssignment(frame, *assignment);
        return LineOutcome::Next;
    }
    if (called || RunTargetStatement(frame, line)) return LineOutcome::Next;
    return RunUnknown(frame, line);
}
