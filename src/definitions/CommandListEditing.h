// The command definition editor's document: the rows of one command list as the list control shows
// them, the identifier range the file's name gives, and the rules of adding, deleting, editing
// through the detail controls, checking and saving.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "definitions/CommandListFile.h"

// The identifiers a list may give its commands. A file named like none of the six lists has the
// range 0 to 0, so that only identifier 0 passes.
struct CommandIdRange {
    int32_t first = 0;
    int32_t last = 0;
    bool operator==(const CommandIdRange&) const = default;
};

// By the name part of the path, compared without regard to case.
CommandIdRange CommandListRange(const std::wstring& path);
// "(first - last)".
std::wstring CommandRangeLabel(CommandIdRange range);

// The columns of a row: a CommandListLine.
enum CommandColumn : int {
    kCommandColumnId = 0,
    kCommandColumnCommunication = 1,
    kCommandColumnCondition = 2,
    kCommandColumnCommandLine = 3,
    kCommandColumnComment = 4,
};

// One row as the detail controls show it: the two codes taken apart into radio indices and check
// boxes. Drop flags of a mode other than drag and drop stay here but are not written.
struct CommandDetails {
    int32_t id = 0;
    std::wstring commandLine;
    std::wstring comment;
    int32_t communicationMode = 0;  // none, drag and drop, WM_COPY, shared memory
    int32_t currentFolder = 0;
    int32_t selectedItems = 0;
    int32_t targetFolder = 0;
    int32_t folderCondition = 0;  // 0 a real current folder, 1 no condition
    int32_t selectionRule = 0;    // 0 the selection conditions, 1 always
    int32_t virtualRule = 0;      // 0 real items only, 1 virtual items too
    int32_t needsFile = 0;
    int32_t needsFolder = 0;
    bool operator==(const CommandDetails&) const = default;
};

CommandDetails ReadCommandDetails(const CommandListLine& row);
std::wstring CommunicationText(const CommandDetails& details);
std::wstring ConditionText(const CommandDetails& details);

// Which of the detail controls that depend on others are enabled.
struct CommandDetailStates {
    bool dropFlags = false;       // current folder, selected items, target folder
    bool selectionFlags = false;  // file and folder flags
    bool conditionRules = false;  // the selection and virtual rules
    bool operator==(const CommandDetailStates&) const = default;
};
CommandDetailStates EnabledDetails(const CommandDetails& details);

// A row that keeps the list from being saved: its index and what the user is told.
struct CommandRowError {
    int row = -1;
    std::wstring message;
    bool operator==(const CommandRowError&) const = default;
};

class CommandListDocument {
public:
    explicit CommandListDocument(CommandIdRange range = {}) : range_(range) {}

    CommandIdRange range() const { return range_; }
    const std::vector<CommandListLine>& rows() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }
    const std::wstring& Text(int row, int column) const;

    // Replaces the rows with the file's data lines; false when it cannot be opened (no rows then).
    bool Load(const std::wstring& path);

    // The detail controls write through to the row at once, each into its own column.
    void SetId(int row, int32_t id);
    void SetCommunication(int row, const CommandDetails& details);
    void SetCondition(int row, const CommandDetails& details);
    void SetCommandLine(int row, const std::wstring& text);
    void SetComment(int row, const std::wstring& text);
    // All five columns from the details, in the order the controls would write them.
    void WriteDetails(int row, const CommandDetails& details);

    // The smallest identifier of the range that no row shows in its plain decimal form; when every
    // one is taken, the first of the range again.
    int32_t FreeId() const;
    // A new row at the end with the free identifier and texts to be replaced; its index.
    int Add();
    // Deletes the row; the row that takes the focus after it, -1 when the list is empty.
    int Delete(int row);

    // The first row that cannot be saved: identifier out of range, empty command line, empty comment.
    std::optional<CommandRowError> FirstError() const;
    // FF FE, then each row as five tab-separated fields and CR LF.
    std::vector<uint8_t> FileBytes() const;
    // Writes the file through the one safe writer; false when it could not be written.
    bool Save(const std::wstring& path) const;

private:
    bool Valid(int row) const { return row >= 0 && row < Count(); }

    CommandIdRange range_;
    std::vector<CommandListLine> rows_;
};
