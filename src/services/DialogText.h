// Translated dialog text. Every dialog, once its controls are set up, reads the text file of the
// language in force and applies it; when there is no such file yet it writes one from what the
// dialog shows, so that translators get a template of every dialog just by opening it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class DialogLanguage;

// "<drive><dir><tag>\<program stem>" and "<...>\<dialog id>.txt" beside the program.
struct DialogTextLocation {
    std::wstring directory;
    std::wstring path;
};
DialogTextLocation LocateDialogText(const std::wstring& programPath, const std::wstring& tag, int32_t dialogId);

// One change that a dialog text file makes to its dialog.
struct DialogTextOperation {
    enum class Kind { SetTitle, ResetCombo, AddComboEntry, SetControlText };
    Kind kind;
    int32_t id = 0;  // the control; 0 for the title
    std::wstring text;
    bool operator==(const DialogTextOperation&) const = default;
};

// What a dialog lets its text file do to it. Controls are named by id alone; an id that names no
// control is the file's mistake.
class DialogTextTarget {
public:
    virtual ~DialogTextTarget() = default;
    virtual void SetTitle(const std::wstring& text) = 0;
    virtual void ResetCombo(int32_t id) = 0;
    virtual void AddComboEntry(int32_t id, const std::wstring& text) = 0;
    virtual void SetControlText(int32_t id, const std::wstring& text) = 0;
};

// The operations of a dialog text file, in file order. False when the file cannot be opened or is
// empty; a file without a usable line still counts as read.
bool ReadDialogText(const std::wstring& path, std::vector<DialogTextOperation>& operations);
void ApplyDialogText(const std::vector<DialogTextOperation>& operations, DialogTextTarget& target);

// What a dialog shows: its title and its direct children in Z order.
struct DialogControl {
    int32_t id = 0;
    std::wstring className;
    std::wstring text;
    std::vector<std::wstring> comboEntries;  // the list of a "ComboBox"
};
struct DialogContent {
    std::wstring title;
    std::vector<DialogControl> controls;
};

// Writes the file a translator starts from. Lists, tabs and edit fields hold the user's data, not
// the dialog's text, and are left out. Any failure leaves things as they are, without a word.
void WriteDialogText(const DialogTextLocation& location, const DialogContent& content);

// A live dialog as translation sees it.
class LocalisableDialog : public DialogTextTarget {
public:
    virtual DialogContent Content() = 0;
};

// Applies the dialog's text file in the language in force, or writes the file when there is none.
void LocaliseDialogText(DialogLanguage& language, int32_t dialogId, LocalisableDialog& dialog);
