// The fifteen confirmations of the "Message" setting as check marks: bit i of the value is row i.
#pragma once

#include <array>
#include <cstdint>

using ConfirmationChecks = std::array<bool, 15>;

ConfirmationChecks ChecksOfMessage(int32_t message);
// The value with its fifteen bits set from the checks; the bits above them stay as they were.
int32_t MessageWithChecks(int32_t message, const ConfirmationChecks& checks);
// The preset for users who know what they do: only the rows outside this mask stay asked.
ConfirmationChecks AdvancedConfirmationChecks();
