// The items a script runs for: paths the caller hands over, which the script may change.
#pragma once

#include <string>
#include <vector>

using SelectionList = std::vector<std::wstring>;
