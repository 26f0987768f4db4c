#include "script/ScriptAssignment.h"

#include <vector>

#include "script/ExpressionEvaluator.h"
#include "script/ScriptControlFlow.h"
#include "script/ScriptFunctions.h"
#include "script/ScriptNumbers.h"
#include "script/ScriptTrace.h"
#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/Tokenizer.h"

namespace {

// A function that wants its variable empty returns this, since an empty result means "the arguments".
constexpr const wchar_t* kEmptyText = L"\t空文字\n\r置換\t";

constexpr int32_t kDivisionByZero = 2;

// x = +2 adds 2 to x, x = &abc appends; x = -5 therefore subtracts. Empty when the form doesn't apply.
std::wstring CompoundResult(const std::wstring& old, const std::wstring& right, const std::wstring& rawRight) {
    if (right.size() < 2) return std::wstring();
    const wchar_t form = right[0];
    if (form == L'&') {
        const size_t amp = rawRight.find(L'&');
#ifdef OPTION_SCRIPT_TEXT_LIMIT
        CheckScriptTextSize(old.size() + rawRight.size() - (amp == std::wstring::npos ? 0 : amp + 1));
#endif
        return old + rawRight.substr(amp == std::wstring::npos ? 0 : amp + 1);
    }
    const std::wstring rest = right.substr(1);
    if (!IsScriptNumber(rest)) return std::wstring();
    // Wrapping as the machine does, without the undefined behaviour of signed overflow.
    const uint64_t a = static_cast<uint64_t>(ScriptInteger(old));
    const int64_t b = ScriptInteger(rest);
    int64_t value = 0;
    switch (form) {
        case L'+':
            value = static_cast<int64_t>(a + static_cast<uint64_t>(b));
            break;
        case L'-':
            value = static_cast<int64_t>(a - static_cast<uint64_t>(b));
            break;
        case L'*':
            value = static_cast<int64_t>(a * static_cast<uint64_t>(b));
            break;
        case L'/':
        case L'%':
            if (b == 0)
                value = 0;
            else if (b == -1)
                value = form == L'/' ? static_cast<int64_t>(0 - a) : 0;
            else
                value = form == L'/' ? static_cast<int64_t>(a) / b : static_cast<int64_t>(a) % b;
            break;
        default:
            return std::wstring();
    }
    return crt::Format(L"%lld", value);
}

void ReportComputeError(int32_t error, const std::wstring& statement) {
    ShowScriptMessage((error == kDivisionByZero ? L"Division by zero.\n" : L"Syntax error!\n") + statement);
}

}  // namespace

std::optional<std::wstring> AssignedName(const ScriptFrame& frame, const std::wstring& statement) {
    const size_t equals = statement.find(L'=');
    if (equals == std::wstring::npos) return std::nullopt;
    std::wstring name = crt::Trim(std::wstring_view(statement).substr(0, equals));
    const VariableName split = SplitVariableName(name);
    if (!split.index.empty()) name = crt::Format(L"%s[%s]", split.base, frame.Expand(split.index, true));
    if (!frame.arguments.variables->Find(name)) return std::nullopt;
    return name;
}

AssignmentRight ReadAssignmentRight(ScriptFrame& frame, const std::wstring& name, const ScriptLine& line) {
    AssignmentRight read;
    read.name = name;
    read.old = *frame.arguments.variables->Find(name);
    read.statement = line.statement;
    const size_t equals = line.spaced.find(L'=');
    read.rawRight = frame.Expand(equals == std::wstring::npos ? std::wstring() : line.spaced.substr(equals + 1), false);
    read.right = crt::Trim(read.rawRight);
    if (!CompoundResult(read.old, read.right, read.rawRight).empty()) return read;
    std::vector<std::wstring> fields;
    Tokenize(fields, read.right, L',', false, true);
    if (fields.empty()) return read;
    const ScriptFunction* function = FindScriptFunction(crt::MakeLower(crt::Trim(fields[0])));
    if (!function || fields.size() < function->fewestFields || fields.size() > function->mostFields) return read;
    read.function = function;
    const size_t comma = read.right.find(L',');
    if (comma != std::wstring::npos) read.arguments = read.right.substr(comma + 1);
    return read;
}

std::optional<WorkedOutAssignment> WorkOutAssignment(ScriptFrame& frame, const AssignmentRight& read) {
    std::wstring result = CompoundResult(read.old, read.right, read.rawRight);
    bool raw = false;
    if (result.empty() && read.function) {
        FunctionResult made = read.function->run(frame, read.arguments);
        switch (made.fault) {
            case FunctionFault::None:
                break;
            case FunctionFault::SyntaxError:
                ShowScriptMessage(L"Syntax error!\n" + read.rawRight);
                return WorkedOutAssignment{read.name, {}, {}, true};
            case FunctionFault::IllegalCall:
                ShowScriptMessage(L"Illegal Function Call!\n" + read.right);
                return WorkedOutAssignment{read.name, {}, {}, true};
            case FunctionFault::Computation:
                ReportComputeError(made.computeError, read.statement);
                return std::nullopt;
        }
        if (made.dropped) return WorkedOutAssignment{read.name, {}, {}, true};
        if (made.untraced) return WorkedOutAssignment{read.name, std::move(made.text), std::nullopt, false};
        result = std::move(made.text);
        raw = made.raw;
    }
    // Behind a function the text behind its name stands in, empty as it may be.
    if (result.empty() && !raw) result = read.function ? read.arguments : read.right;
    if (result == kEmptyText) result.clear();
    if (!raw) {
        RewriteHexNumbers(result);
        result = crt::Trim(result);
        if (!result.empty() && IsExpressionText(result)) {
            const ComputedText computed = ExpressionEvaluator(result).Compute();
            if (computed.error != 0) {
                ReportComputeError(computed.error, read.statement);
                return std::nullopt;
            }
            result = computed.value;
        }
    }
    WorkedOutAssignment assignment{read.name, std::move(result), {}, false};
    assignment.traced = raw ? read.arguments : assignment.value;
    return assignment;
}

void StoreAssignment(ScriptFrame& frame, const WorkedOutAssignment& assignment) {
    if (assignment.dropped) return;
    frame.arguments.variables->Set(assignment.name, assignment.value);
    if (assignment.traced) ReportTrace(frame.TraceWindow, kTraceVariable, assignment.name + L"\t" + *assignment.traced);
}
