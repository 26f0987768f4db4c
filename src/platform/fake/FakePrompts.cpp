#include "platform/fake/FakePrompts.h"

namespace platform::fake {

int FakePrompts::ShowMessage(const std::wstring& text, unsigned style) {
    return Ask(text, L"", style);
}

int FakePrompts::Ask(const std::wstring& text, const std::wstring& caption, unsigned style) {
    shown_.push_back({text, style, caption});
    return NextAnswer(style);
}

int FakePrompts::ShowOwnedMessage(uintptr_t owner, const std::wstring& text, const std::wstring& caption,
                                  unsigned flags) {
    shown_.push_back({text, flags, caption, owner});
    return NextAnswer(flags);
}

int FakePrompts::NextAnswer(unsigned style) {
    if (!answers_.empty()) {
        int answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    return (style & 0xF) == kStyleYesNo ? kAnswerNo : kAnswerOk;
}

FolderChoice FakePrompts::BrowseForFolder(const std::wstring& title, const std::wstring& start) {
    browsed_.push_back({title, start});
    if (folders_.empty()) return {};
    FolderChoice choice = folders_.front();
    folders_.pop_front();
    return choice;
}

FolderChoice FakePrompts::BrowseForFolderName(const std::wstring& title, const std::wstring& start) {
    return BrowseForFolder(title, start);
}

FolderChoice FakePrompts::ChooseFileToOpen(const std::wstring& title, const std::wstring&, const std::wstring& start) {
    return BrowseForFolder(title, start);
}

bool FakePrompts::PickFont(LogFont& font, uint32_t flags) {
    fontBoxes_.emplace_back(font.lfFaceName, flags);
    if (fonts_.empty()) return false;
    font = fonts_.front();
    fonts_.pop_front();
    return true;
}

int FakePrompts::ChooseOne(const ChoiceRequest& request) {
    offered_.push_back(request);
    if (choices_.empty()) return -1;
    int index = choices_.front();
    choices_.pop_front();
    return index;
}

}  // namespace platform::fake
