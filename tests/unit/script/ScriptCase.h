// A script and what a user sees of its run: values left in variables, messages shown, the result.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "unit/script/ScriptFixture.h"

struct ScriptCase {
    using Values = std::vector<std::pair<std::wstring, std::wstring>>;

    // Rows name what they check; what they leave out is expected empty, and the result 0.
    ScriptCase(const char* label, std::vector<std::wstring> lines, Values values = {},
               std::vector<std::wstring> messages = {}, int32_t result = 0)
        : label(label), lines(std::move(lines)), values(std::move(values)), messages(std::move(messages)),
          result(result) {}

    const char* label;
    std::vector<std::wstring> lines;
    Values values;
    std::vector<std::wstring> messages;
    int32_t result;
};

class ScriptCaseTest : public ScriptFixture {
protected:
    void Check(const ScriptCase& c) {
        EXPECT_EQ(c.result, RunLines(c.lines)) << c.label;
        for (const auto& [name, value] : c.values)
            EXPECT_EQ(value, Value(name)) << c.label << ": " << testing::PrintToString(name);
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }
};
