#include "script/ScriptTextFunctions.h"

#include <algorithm>
#include <vector>

#include "script/ExpressionEvaluator.h"
#include "script/ScriptFields.h"
#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/Tokenizer.h"

namespace {

// The fields of the right side: the function's name and its arguments.
size_t FieldCount(const std::wstring& arguments) {
    return 2 + static_cast<size_t>(std::count(arguments.begin(), arguments.end(), L','));
}

FunctionResult SyntaxError() {
    return {{}, false, true, FunctionFault::SyntaxError};
}

FunctionResult Number(int64_t value) {
    return {crt::Format(L"%lld", value)};
}

}  // namespace

FunctionResult Length(ScriptFrame&, const std::wstring& arguments) {
    return Number(static_cast<int64_t>(arguments.size()));
}

FunctionResult SubString(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 4) return SyntaxError();
    std::wstring rest = arguments;
    const int32_t start = crt::Wtoi(PopField(rest));
    const int32_t count = crt::Wtoi(PopField(rest));
    return {crt::Mid(rest, start, count)};
}

FunctionResult Find(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 3) return SyntaxError();
    std::wstring text = arguments;
    const std::wstring what = PopField(text);
    const size_t at = text.find(what);
    return Number(at == std::wstring::npos ? -1 : static_cast<int64_t>(at));
}

FunctionResult ReplaceText(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 4) return SyntaxError();
    std::wstring text = arguments;
    const std::wstring what = PopField(text);
    const std::wstring by = PopField(text);
    crt::Replace(text, what, by);
    return {text};
}

FunctionResult CsvField(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 3) return SyntaxError();
    std::wstring list = arguments;
    const int32_t index = crt::Wtoi(PopField(list));
    std::vector<std::wstring> fields;
    Tokenize(fields, list, L',', true, true);
    if (index < 0 || static_cast<size_t>(index) >= fields.size()) return {{}, false, true, FunctionFault::IllegalCall};
    return {fields[static_cast<size_t>(index)]};
}

FunctionResult LeftText(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 3) return SyntaxError();
    std::wstring text = arguments;
    const int32_t count = crt::Wtoi(PopField(text));
    return {crt::Left(text, count)};
}

FunctionResult RightText(ScriptFrame&, const std::wstring& arguments) {
    if (FieldCount(arguments) < 3) return SyntaxError();
    std::wstring text = arguments;
    const int32_t count = crt::Wtoi(PopField(text));
    return {crt::Right(text, count)};
}

FunctionResult Compute(ScriptFrame&, const std::wstring& arguments) {
    const ComputedText computed = ExpressionEvaluator(arguments).Compute();
    if (computed.error != 0) return {{}, false, true, FunctionFault::Computation, computed.error};
    return {computed.value};
}

FunctionResult MainWindowPosition(ScriptFrame&, const std::wstring& arguments) {
    return {arguments};
}
