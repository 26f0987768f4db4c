#include "script/LaunchRun.h"

#include <vector>

#include "platform/Platform.h"
#include "script/LaunchQueue.h"
#include "script/MacroExpansion.h"
#include "script/ScriptMatchers.h"
#include "services/CRuntime.h"
#include "services/Tokenizer.h"

namespace {

constexpr int kShiftKey = 16;
// An argument text of one line feed stands for "start nothing at all".
constexpr wchar_t kNothing[] = L"\n";
// The host's own preview bar: an "exrun" entry that names it leaves the item to the host.
constexpr wchar_t kPreviewBar[] = L"previewbar";

void RunAndWait(LaunchQueue& queue, uint32_t waitTime) {
    RunLaunchQueue(queue);
    if (waitTime != 0) platform::Current().processes.Sleep(waitTime);
}

}  // namespace

void LaunchRun(const std::wstring& program, const SelectionList& selection, const std::wstring& directory,
               bool shiftSilent, std::wstring argumentText, bool multi, const LaunchSettings& settings) {
    LaunchQueue queue;
    auto add = [&](const std::wstring& arguments) {
        queue.Add(settings.mode, program, arguments, directory, settings.show, settings.timeout);
    };
    if (!program.empty()) {
        if (shiftSilent && platform::Current().windows.IsKeyDown(kShiftKey)) argumentText.clear();
        if (argumentText == kNothing) return;
        if (argumentText.empty() || !ContainsItemMacro(argumentText)) {
            add(argumentText);
        } else if (multi) {
            ExpandJoinedItemMacros(selection, argumentText);
            add(argumentText);
        } else if (selection.empty()) {
            RemoveItemMacros(argumentText);
            add(argumentText);
        } else {
            for (const std::wstring& item : selection) {
                std::wstring arguments = argumentText;
                ExpandItemMacros(item, arguments);
                add(arguments);
            }
        }
    }
    RunAndWait(queue, settings.waitTime);
}

bool LaunchExRunEntry(const std::wstring& program, const std::wstring& item, const std::wstring& directory,
                      const std::wstring& argumentText, const std::wstring& filter, const LaunchSettings& settings) {
    if (program.empty()) return false;
    if (argumentText.empty() || argumentText == kNothing || !ContainsItemMacro(argumentText)) return false;
    if (!filter.empty() && !MatchExtensionList(filter, item)) return false;
    std::wstring arguments = argumentText;
    ExpandItemMacros(item, arguments);

    std::wstring chosen = program;
    std::vector<std::wstring> alternatives;
    Tokenize(alternatives, program, L'|', true, false);
    if (alternatives.size() >= 2) {
        const int index = platform::Current().prompts.ChooseOne(
            {L"Please select an application.", item.substr(item.find_last_of(L'\\') + 1), alternatives});
        if (index < 0) return true;
        chosen = crt::Trim(alternatives[index]);
    }
    if (crt::MakeLower(chosen) == kPreviewBar) return false;

    LaunchQueue queue;
    queue.Add(settings.mode, chosen, arguments, directory, settings.show, settings.timeout);
    RunAndWait(queue, settings.waitTime);
    return true;
}
