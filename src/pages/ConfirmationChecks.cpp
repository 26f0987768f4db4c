#include "pages/ConfirmationChecks.h"

#include "services/BitMask.h"

namespace {

constexpr uint32_t kAdvancedQuiet = 0x38FB;

}  // namespace

ConfirmationChecks ChecksOfMessage(int32_t message) {
    ConfirmationChecks checks{};
    for (int row = 0; row < static_cast<int>(checks.size()); ++row) {
        checks[row] = (static_cast<uint32_t>(message) & BitMask(row)) != 0;
    }
    return checks;
}

int32_t MessageWithChecks(int32_t message, const ConfirmationChecks& checks) {
    uint32_t bits = static_cast<uint32_t>(message);
    for (int row = 0; row < static_cast<int>(checks.size()); ++row) {
        bits = checks[row] ? bits | BitMask(row) : bits & ~BitMask(row);
    }
    return static_cast<int32_t>(bits);
}

ConfirmationChecks AdvancedConfirmationChecks() {
    return ChecksOfMessage(static_cast<int32_t>(~kAdvancedQuiet));
}
