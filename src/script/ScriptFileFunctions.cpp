#include "script/ScriptFileFunctions.h"

#include <vector>

#include "script/ScriptControlFlow.h"

namespace {

// The argument is the whole rest of the line, commas included: a path may hold them. Only another
// path reopens the reader, so two paths in turn each start again at the top.
bool OnDataFile(ScriptFrame& frame, const std::wstring& path) {
    if (frame.dataReader.path() == path) return true;
    if (frame.dataReader.Open(path)) return true;
    ShowScriptMessage(L"File is not open.");
    return false;
}

// The variable keeps its value when the file can't be read.
FunctionResult Dropped() {
    FunctionResult result;
    result.dropped = true;
    return result;
}

}  // namespace

FunctionResult FileReadFunction(ScriptFrame& frame, const std::wstring& arguments) {
    if (!OnDataFile(frame, arguments)) return Dropped();
    // A fresh buffer each time: the end of the file is then always the end, never one more empty line.
    std::vector<wchar_t> line(kScriptLineLimit + 2, 0);
    if (!frame.dataReader.ReadLine(line.data(), kScriptLineLimit)) return FunctionResult{L"ERROR", true};
    return FunctionResult{line.data(), true};
}

FunctionResult FileAllReadFunction(ScriptFrame& frame, const std::wstring& arguments) {
    if (!OnDataFile(frame, arguments)) return Dropped();
    return FunctionResult{frame.dataReader.WholeText(), true};
}
