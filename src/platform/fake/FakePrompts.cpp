#include "platform/fake/FakePrompts.h"

namespace platform::fake {

int FakePrompts::ShowMessage(const std::wstring& text, unsigned style) {
    shown_.push_back({text, style});
    if (!answers_.empty()) {
        int answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    return (style & 0xF) == kStyleYesNo ? kAnswerNo : kAnswerOk;
}

} // namespace platform::fake
