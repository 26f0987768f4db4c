#include "services/CheckLabelCount.h"

#include "platform/Platform.h"
#include "services/Format.h"

int CheckLabelCount(int required, const std::vector<std::wstring>& parts, int controlId) {
    int found = static_cast<int>(parts.size());
    if (found == required) return 1;
    platform::Current().prompts.ShowMessage(
        crt::Format(L"String of %d is required ID:%d, but it has become %d", found, controlId, required),
        platform::kStyleOk);
    return 0;
}
