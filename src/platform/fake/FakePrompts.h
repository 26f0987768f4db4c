// Message boxes for tests: every box is recorded, answers come from a script.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Prompts.h"

namespace platform::fake {

struct ShownMessage {
    std::wstring text;
    unsigned style;
    std::wstring caption{};  // empty for the application's own message box
    uintptr_t owner = 0;     // given only to an owned message box
    bool operator==(const ShownMessage&) const = default;
};

// One opening of the folder browser or the file open box (title, start).
struct FolderBrowse {
    std::wstring title;
    std::wstring start;
    bool operator==(const FolderBrowse&) const = default;
};

class FakePrompts : public Prompts {
public:
    int ShowMessage(const std::wstring& text, unsigned style) override;
    int Ask(const std::wstring& text, const std::wstring& caption, unsigned style) override;
    int ShowOwnedMessage(uintptr_t owner, const std::wstring& text, const std::wstring& caption,
                         unsigned flags) override;
    FolderChoice BrowseForFolder(const std::wstring& title, const std::wstring& start) override;
    FolderChoice BrowseForFolderName(const std::wstring& title, const std::wstring& start) override;
    FolderChoice ChooseFileToOpen(const std::wstring& title, const std::wstring& filter,
                                  const std::wstring& start) override;
    int ChooseOne(const ChoiceRequest& request) override;
    std::optional<uint32_t> ChooseColour(uint32_t initial) override;
    std::optional<LogFont> ChooseFontFace(const LogFont& initial, unsigned flags) override;

    // Answers given in turn; when none is left a question gets No and a message OK.
    void Answer(int answer) { answers_.push_back(answer); }
    const std::vector<ShownMessage>& shown() const { return shown_; }
    // Folder and file choices given in turn; when none is left the box is cancelled.
    void ChooseFolder(FolderChoice choice) { folders_.push_back(std::move(choice)); }
    const std::vector<FolderBrowse>& browsed() const { return browsed_; }
    // Choices taken in turn, by index; when none is left the task dialog is cancelled.
    void Choose(int index) { choices_.push_back(index); }
    const std::vector<ChoiceRequest>& offered() const { return offered_; }
    // Colours and fonts chosen in turn; when none is left the chooser is cancelled. The colour and
    // the flags each chooser opened with are kept.
    void ChooseColourNext(std::optional<uint32_t> colour) { colours_.push_back(colour); }
    void ChooseFontNext(std::optional<LogFont> font) { fonts_.push_back(font); }
    const std::vector<uint32_t>& colourOpenings() const { return colourOpenings_; }
    const std::vector<unsigned>& fontOpenings() const { return fontOpenings_; }
    void Clear() {
        colours_.clear();
        fonts_.clear();
        colourOpenings_.clear();
        fontOpenings_.clear();
        shown_.clear();
        answers_.clear();
        browsed_.clear();
        folders_.clear();
        offered_.clear();
        choices_.clear();
    }

private:
    int NextAnswer(unsigned style);

    std::vector<ShownMessage> shown_;
    std::deque<int> answers_;
    std::vector<FolderBrowse> browsed_;
    std::deque<FolderChoice> folders_;
    std::vector<ChoiceRequest> offered_;
    std::deque<int> choices_;
    std::deque<std::optional<uint32_t>> colours_;
    std::deque<std::optional<LogFont>> fonts_;
    std::vector<uint32_t> colourOpenings_;
    std::vector<unsigned> fontOpenings_;
};

}  // namespace platform::fake
