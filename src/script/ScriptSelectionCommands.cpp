#include "script/ScriptSelectionCommands.h"

#include <algorithm>
#include <vector>

#include "script/DirectoryItems.h"
#include "script/ScriptCommands.h"
#include "script/ScriptControlFlow.h"
#include "script/ScriptMatchers.h"
#include "services/CRuntime.h"
#include "services/Tokenizer.h"

LineOutcome RunAppendSelectItem(ScriptFrame& frame, const ScriptLine& line) {
    frame.arguments.selection->push_back(CommandValue(frame, line, ValueForm::Expanded));
    return LineOutcome::Next;
}

LineOutcome RunAppendCsvSelectItem(ScriptFrame& frame, const ScriptLine& line) {
    Tokenize(*frame.arguments.selection, CommandValue(frame, line, ValueForm::Expanded), L',', true, true);
    return LineOutcome::Next;
}

LineOutcome RunGetSelectItems(ScriptFrame& frame, const ScriptLine& line) {
    ListDirectoryItems(CommandValue(frame, line, ValueForm::Expanded), *frame.arguments.selection);
    return LineOutcome::Next;
}

LineOutcome RunRemoveSelectItems(ScriptFrame& frame, const ScriptLine& line) {
    if (frame.ItemIndex != -1) return RefuseRemovalInLoop();
    std::wstring patterns = CommandValue(frame, line, ValueForm::Raw);
    // "!" in front keeps the items that match and drops the others.
    const bool keepMatches = patterns.size() > 1 && patterns[0] == L'!';
    if (keepMatches) patterns = crt::Trim(std::wstring_view(patterns).substr(1));
    SelectionList& items = *frame.arguments.selection;
    std::erase_if(items, [&](const std::wstring& item) { return MatchPatternList(item, patterns) != keepMatches; });
    return LineOutcome::Next;
}

LineOutcome RefuseRemovalInLoop() {
    ShowScriptMessage(L"RemoveSelectItems can not be executed within the loop.");
    return LineOutcome::Exit;
}
