#include "definitions/MenuCommandFields.h"

#include "definitions/MenuDefinition.h"
#include "services/CRuntime.h"

namespace {

bool IsPath(uint32_t kind) {
    return kind == kMenuArgumentDirectory || kind == kMenuArgumentFile;
}

std::wstring WithoutTabs(std::wstring text) {
    crt::Replace(text, L"\t", L"");
    return crt::Trim(text);
}

}  // namespace

MenuCommandControls ControlsForKeyword(int row) {
    const MenuKeywordRow& keyword = MenuKeywordTable[row];
    const uint32_t first = keyword.firstKind;
    const uint32_t second = keyword.secondKind;
    MenuCommandControls controls;
    controls.text = first != kMenuArgumentUnused;
    controls.target = second != kMenuArgumentUnused;
    controls.pickText = IsPath(first) || first == kMenuArgumentPosition || first == kMenuArgumentOnOff;
    controls.pickTarget = second != kMenuArgumentUnused && second != kMenuArgumentText;
    controls.macroText = IsPath(first);
    controls.macroTarget = IsPath(second);
    return controls;
}

// The notepad line has no target, yet it is excused from the target's check all the same.
std::wstring FinishMenuCommand(std::wstring& command, std::wstring& text, std::wstring& target) {
    command = WithoutTabs(command);
    text = WithoutTabs(text);
    target = WithoutTabs(target);
    const int row = FindMenuKeywordRow(command);
    const MenuKeywordRow& keyword = MenuKeywordTable[row];
    if (keyword.firstKind == kMenuArgumentUnused) {
        text.clear();
    } else if (row != 0 && text.empty()) {
        return std::wstring(keyword.firstLabel) + L" has not been entered.";
    }
    if (keyword.secondKind == kMenuArgumentUnused) {
        target.clear();
    } else if (row != 0 && row != kMenuKeywordNotepad && target.empty()) {
        return std::wstring(keyword.secondLabel) + L" has not been entered.";
    }
    return {};
}
