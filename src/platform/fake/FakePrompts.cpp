#include "platform/fake/FakePrompts.h"

namespace platform::fake {

int FakePrompts::ShowMessage(const std::wstring& text, unsigned style) {
    return Ask(text, L"", style);
}

int FakePrompts::Ask(const std::wstring& text, const std::wstring& caption, unsigned style) {
    shown_.push_back({text, style, caption});
    if (!answers_.empty()) {
        int answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    return (style & 0xF) == kStyleYesNo ? kAnswerNo : kAnswerOk;
}

}  // namespace platform::fake
