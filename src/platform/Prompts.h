// Questions and messages put to the user.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/LogFont.h"

namespace platform {

// The answers of MessageBox.
enum PromptAnswer : int { kAnswerOk = 1, kAnswerCancel = 2, kAnswerYes = 6, kAnswerNo = 7 };
// The styles the program uses.
enum PromptStyle : unsigned { kStyleOk = 0, kStyleYesNo = 4, kStyleInformation = 0x40 };

// What the folder browser or the file open box gave back.
struct FolderChoice {
    bool confirmed = false;  // false: the user cancelled
    std::wstring path;       // empty when the folder has no file-system path (a virtual folder)
    bool operator==(const FolderChoice&) const = default;
};

// A task dialog that offers one command link per choice, and Cancel.
struct ChoiceRequest {
    std::wstring instruction;
    std::wstring content;
    std::vector<std::wstring> choices;
    bool operator==(const ChoiceRequest&) const = default;
};

class Prompts {
public:
    Prompts() = default;
    Prompts(const Prompts&) = delete;
    Prompts& operator=(const Prompts&) = delete;
    virtual ~Prompts() = default;

    // The application's message box: caption is the program's name, owner the active window; a style
    // without an icon gets the framework's own (a warning for OK, a question mark for Yes/No).
    virtual int ShowMessage(const std::wstring& text, unsigned style) = 0;
    // A message box with a caption of its own, owned by the active window.
    virtual int Ask(const std::wstring& text, const std::wstring& caption, unsigned style) = 0;
    // MessageBoxW as it stands: the owner (0 for none), caption and flags as given; the button pressed.
    virtual int ShowOwnedMessage(uintptr_t owner, const std::wstring& text, const std::wstring& caption,
                                 unsigned flags) = 0;
    // The shell's folder browser with title above its tree, start selected when it is not empty;
    // owned by the active window, or the desktop when there is none. A path of 520 units or more
    // is not taken: it comes back empty.
    virtual FolderChoice BrowseForFolder(const std::wstring& title, const std::wstring& start) = 0;
    // The same browser, answering with the folder's parsing name as the desktop gives it, so that a
    // virtual folder comes back as "::{...}"; its file-system path when that name is empty.
    virtual FolderChoice BrowseForFolderName(const std::wstring& title, const std::wstring& start) = 0;
    // The file open box for an existing file, read-only box hidden, start preselected, titled by the
    // system when title is empty; when the box refuses the start text it opens once more without it.
    // filter: pairs of texts, each ending in "|".
    virtual FolderChoice ChooseFileToOpen(const std::wstring& title, const std::wstring& filter,
                                          const std::wstring& start) = 0;
    // Captioned with the program's name and owned by the active window. The index of the choice
    // taken; -1 when the user cancelled.
    virtual int ChooseOne(const ChoiceRequest& request) = 0;
    // The system's colour chooser, opened in full on the colour given (0x00BBGGRR) and owned by the
    // active window; nullopt when the user cancelled.
    virtual std::optional<uint32_t> ChooseColour(uint32_t initial) = 0;
    // The system's font chooser with these chooser flags, opened on the font given; nullopt when the
    // user cancelled.
    virtual std::optional<LogFont> ChooseFontFace(const LogFont& initial, unsigned flags) = 0;
};

}  // namespace platform
