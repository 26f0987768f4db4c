#include "ui/ControlText.h"

#include "services/Tokenizer.h"
#include "ui/Control.h"

namespace ui {

std::wstring ControlText(HWND control) {
    return Control(control).Text();
}

int SplitControlText(HWND control, std::vector<std::wstring>& parts) {
    parts.clear();
    return Tokenize(parts, ControlText(control), L'/', false, true);
}

}  // namespace ui
