// A script and what a user sees of its run: values left in variables, messages shown, the result.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "unit/script/ScriptFixture.h"

struct ScriptCase {
    const char* label;
    std::vector<std::wstring> lines;
    std::vector<std::pair<std::wstring, std::wstring>> values;
    std::vector<std::wstring> messages;
    int32_t result = 0;
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
