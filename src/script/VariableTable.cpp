#include "script/VariableTable.h"

#include "services/CRuntime.h"

namespace {

// Enough for chains of names; a pair of variables naming each other stops here too.
constexpr int kMaxRounds = 10;

}  // namespace

void ExpandVariables(const VariableTable& variables, std::wstring& text) {
    for (int round = 0; round < kMaxRounds && !variables.empty(); ++round) {
        bool replaced = false;
        variables.ForEach([&](const std::wstring& name, const std::wstring& value) {
            if (name != value && crt::Replace(text, name, value) > 0) replaced = true;
        });
        if (!replaced) break;
    }
}
