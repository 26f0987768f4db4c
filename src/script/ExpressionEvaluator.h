// Arithmetic on text: sums of products of numbers, parentheses and signs, computed as doubles.
#pragma once

#include <cstdint>
#include <string>

// One of the six characters of the operator table, the blank included: the alphabet of expressions.
bool IsOperatorCharacter(wchar_t c);

struct ComputedText {
    std::wstring value;  // "0" on error
    int32_t error = 0;   // 0 good, 2 division by zero, anything else a syntax error
};

class ExpressionEvaluator {
public:
    // An evaluator serves one computation.
    explicit ExpressionEvaluator(const std::wstring& text) : cursor_(text.c_str()) {}
    // Whole numbers as "%d", others as "%f" without trailing zeros. Input left over is an error whose
    // code is the first character not read.
    ComputedText Compute();

private:
    double Level(int row);
    double Factor();
    void ReadToken();
    bool InRow(int row) const;

    // The current token, and the error code once something went wrong: both live in this one field.
    int32_t token_ = 0;
    const wchar_t* cursor_;
};
