#include "script/ScriptMainLoop.h"

#include "script/ScriptCommands.h"
#include "services/CRuntime.h"

LineOutcome RunMainLoop(ScriptFrame& frame) {
    frame.reader.ReadPosition = 0;
    while (frame.ReadLine()) {
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
    LineOutcome outcome = LineOutcome::Next;
    RunCommand(frame, line, outcome);
    // A line nothing claims, a label line among them, is passed over.
    return outcome;
}
