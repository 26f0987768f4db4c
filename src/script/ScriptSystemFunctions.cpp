#include "script/ScriptSystemFunctions.h"

#include "platform/Platform.h"
#include "script/ScriptFields.h"
#include "services/CRuntime.h"
#include "services/Format.h"

FunctionResult SystemMetricsFunction(ScriptFrame&, const std::wstring& arguments) {
    std::wstring fields = arguments;
    const int32_t index = crt::Wtoi(PopField(fields));
    return FunctionResult{crt::Format(L"%d", platform::Current().environment.GetSystemMetrics(index))};
}

// The clipboard's ANSI text read in the thread's code page, so characters outside it are lost. Raw, so
// that an empty clipboard empties the variable and a number on it stays as it was copied.
FunctionResult ClipboardTextFunction(ScriptFrame&, const std::wstring&) {
    platform::Platform& os = platform::Current();
    std::string text;
    if (!os.system.ClipboardAnsiText(text)) return FunctionResult{L"", true};
    return FunctionResult{os.environment.FromAnsi(text), true};
}
