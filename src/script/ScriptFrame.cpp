#include "script/ScriptFrame.h"

#include "platform/Platform.h"
#include "script/MacroExpansion.h"
#include "script/ScriptRunner.h"
#include "services/Format.h"

ScriptFrame::ScriptFrame(ScriptRunner& runner, const ScriptArguments& given)
    : runner(runner), arguments(given), lineBuffer_(kScriptLineLimit + 2, 0) {
    if (!arguments.hostWindow) arguments.hostWindow = platform::Current().windows.FindHostWindow();
    if (!arguments.variables) {
        ownVariables_ = std::make_unique<VariableTable>();
        arguments.variables = ownVariables_.get();
    }
    if (!arguments.options) {
        ownOptions_ = std::make_unique<RunOptionTable>();
        FillRunOptionDefaults(*ownOptions_);
        arguments.options = ownOptions_.get();
    }
    ReadRunOptions();
    selectedCountAtStart = static_cast<int64_t>(arguments.selection->size());
    selectedCountText = crt::Format(L"%d", static_cast<int32_t>(selectedCountAtStart));
}

bool ScriptFrame::ReadLine() {
    return reader.ReadLine(lineBuffer_.data(), kScriptLineLimit);
}

std::wstring ScriptFrame::Expand(std::wstring text, bool trim) const {
    ExpandScriptText(text, *arguments.variables, arguments.nowDirectory, arguments.targetPath, *arguments.selection,
                     ItemIndex, trim, runner.directories());
    return text;
}
