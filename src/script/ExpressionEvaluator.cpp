#include "script/ExpressionEvaluator.h"

#include <cmath>
#include <iterator>

#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

// Rows of three, loosest binding first, then the final zero. The blank never
// comes as a token, but it belongs to the alphabet the table also stands for.
constexpr wchar_t kOperators[] = L"+- */%";
constexpr int kLevels = static_cast<int>((std::size(kOperators) - 1) / 3);
constexpr int32_t kSyntaxError = 1;
constexpr int32_t kDivisionByZero = 2;

// The C runtime's conversion of an out-of-range double to int: the "indefinite" minimum.
int32_t TruncateToInt32(double value) {
    if (value >= -2147483648.0 && value < 2147483648.0) return static_cast<int32_t>(value);
    return INT32_MIN;
}

std::wstring ValueText(double value) {
    const int32_t whole = TruncateToInt32(value);
    if (static_cast<double>(whole) == value) return crt::Format(L"%d", whole);
    std::wstring text = crt::Format(L"%f", value);
    // The point stays even when nothing is left behind it.
    if (text.find(L'.') != std::wstring::npos) text.erase(text.find_last_not_of(L'0') + 1);
    return text;
}

}  // namespace

bool IsOperatorCharacter(wchar_t c) {
    for (const wchar_t* op = kOperators; *op; ++op)
        if (*op == c) return true;
    return false;
}

ComputedText ExpressionEvaluator::Compute() {
    token_ = 0;
    const double value = Level(0);
    if (token_ != 0) return {L"0", token_};
    return {ValueText(value), 0};
}

bool ExpressionEvaluator::InRow(int row) const {
    for (int i = 0; i < 3; ++i)
        if (kOperators[row * 3 + i] == token_) return true;
    return false;
}

double ExpressionEvaluator::Level(int row) {
    if (row == kLevels) return Factor();
    double value = Level(row + 1);
    while (InRow(row)) {
        const int32_t op = token_;
        const double right = Level(row + 1);
        switch (op) {
        case L'+': value += right; break;
        case L'-': value -= right; break;
        case L'*': value *= right; break;
        case L'/':
        case L'%':
            if (right == 0) {
                token_ = kDivisionByZero;
                return 0;
            }
            value = op == L'/' ? value / right : std::fmod(value, right);
            break;
        }
    }
    return value;
}

double ExpressionEvaluator::Factor() {
    ReadToken();
    if ((token_ >= L'0' && token_ <= L'9') || token_ == L'.') {
        const double value = crt::Wcstod(cursor_ - 1, &cursor_);
        ReadToken();
        return value;
    }
    if (token_ == L'(') {
        const double value = Level(0);
        if (token_ != L')') {
            token_ = kSyntaxError;
            return 0;
        }
        ReadToken();
        return value;
    }
    if (token_ == L'-') return -Factor();
    if (token_ == L'+') return Factor();
    token_ = kSyntaxError;
    return 0;
}

void ExpressionEvaluator::ReadToken() {
    while (crt::IsSpace(*cursor_)) ++cursor_;
    token_ = static_cast<uint16_t>(*cursor_);
    if (*cursor_) ++cursor_;
}
