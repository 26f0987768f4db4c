// Message boxes for tests: every box is recorded, answers come from a script.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/Prompts.h"

namespace platform::fake {

struct ShownMessage {
    std::wstring text;
    unsigned style;
    std::wstring caption{};  // empty for the application's own message box
    bool operator==(const ShownMessage&) const = default;
};

class FakePrompts : public Prompts {
public:
    int ShowMessage(const std::wstring& text, unsigned style) override;
    int Ask(const std::wstring& text, const std::wstring& caption, unsigned style) override;

    // Answers given in turn; when none is left a question gets No and a message OK.
    void Answer(int answer) { answers_.push_back(answer); }
    const std::vector<ShownMessage>& shown() const { return shown_; }
    void Clear() {
        shown_.clear();
        answers_.clear();
    }

private:
    std::vector<ShownMessage> shown_;
    std::deque<int> answers_;
};

}  // namespace platform::fake
