#include "script/ScriptCondition.h"

#include <cwchar>

#include "script/ScriptMatchers.h"
#include "script/ScriptNumbers.h"
#include "services/CRuntime.h"
#include "services/StrCmpLogical.h"

namespace {

enum class Comparison { Equal, Pattern, Less, Greater };

struct ConditionOperator {
    const wchar_t* text;
    Comparison comparison;
    bool positive;
};

// The first of these present anywhere in the text is the operator: "==" before "<", so a<b==c
// compares a<b with c.
constexpr ConditionOperator kOperators[] = {
    {L"==", Comparison::Equal, true},     {L"!=", Comparison::Equal, false},  {L"!^", Comparison::Pattern, false},
    {L"^", Comparison::Pattern, true},    {L"<=", Comparison::Greater, false}, {L">=", Comparison::Less, false},
    {L"<", Comparison::Less, true},       {L">", Comparison::Greater, true},
};

std::wstring Side(const std::wstring& text, const ScriptFrame& frame) {
    return NormalisedNumberText(crt::MakeLower(frame.Expand(text, true)));
}

// Below 0 when left comes first: as numbers when both sides are integers, else digit runs by value.
int Order(const std::wstring& left, const std::wstring& right) {
    if (IsSignedInteger(left) && IsSignedInteger(right)) {
        const int32_t a = crt::Wtoi(left);
        const int32_t b = crt::Wtoi(right);
        return a < b ? -1 : (a > b ? 1 : 0);
    }
    return crt::StrCmpLogical(left.c_str(), right.c_str());
}

bool Holds(Comparison comparison, const std::wstring& left, const std::wstring& right) {
    switch (comparison) {
    case Comparison::Equal: return left == right;  // both sides are lowered already
    case Comparison::Pattern: return MatchPatternList(left, right);
    case Comparison::Less: return Order(left, right) < 0;
    case Comparison::Greater: return Order(left, right) > 0;
    }
    return false;
}

}  // namespace

int EvaluateCondition(const std::wstring& condition, const ScriptFrame& frame) {
    for (const ConditionOperator& op : kOperators) {
        const size_t at = condition.find(op.text);
        if (at == std::wstring::npos) continue;
        const std::wstring left = Side(condition.substr(0, at), frame);
        const std::wstring right = Side(condition.substr(at + std::wcslen(op.text)), frame);
        return Holds(op.comparison, left, right) == op.positive ? 1 : -1;
    }
    return 0;
}
