#pragma once

#include <string>
#include <vector>

// A hidden label must split into the required number of parts. On a mismatch the user is told, in the
// words the translators know ("String of %d is required ID:%d, but it has become %d", with the count
// found first and the count required last), and 0 comes back; otherwise 1.
int CheckLabelCount(int required, const std::vector<std::wstring>& parts, int controlId);
