#include "services/SystemError.h"

#include "platform/Platform.h"
#include "services/Format.h"

void ShowSystemError(uint32_t error, const std::wstring& caption) {
    if (error == 0) return;
    platform::Platform& os = platform::Current();
    std::wstring text = os.processes.ErrorText(error);
    if (!caption.empty()) text = crt::Format(L"%s\n%s", caption, text);
    os.prompts.ShowMessage(text, platform::kStyleOk);
}
