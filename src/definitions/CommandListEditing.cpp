#include "definitions/CommandListEditing.h"

#include <algorithm>
#include <unordered_set>

#include "definitions/CommunicationCode.h"
#include "definitions/ConditionCode.h"
#include "services/CRuntime.h"
#include "services/CaseCompare.h"
#include "services/WholeFileWriter.h"
#include "services/WideStream.h"

namespace {

struct ListRange {
    const wchar_t* name;
    CommandIdRange range;
};

// The lists share the external commands' space; each may use only its own part of it.
constexpr ListRange kListRanges[] = {
    {L"ExternalDefCommand.txt", {40001, 43000}}, {L"ExternalUserCommand.txt", {42501, 43000}},
    {L"ScriptCommand.txt", {40004, 40500}},      {L"ScriptNaviCommand.txt", {40504, 41000}},
    {L"UserMenuCommand.txt", {41001, 41500}},    {L"PlugInCommand.txt", {41501, 41600}},
};

using Mode = CommunicationCode::Mode;

const std::wstring kNoText;

}  // namespace

CommandIdRange CommandListRange(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/:");
    const std::wstring_view name =
        slash == std::wstring::npos ? std::wstring_view(path) : std::wstring_view(path).substr(slash + 1);
    for (const ListRange& list : kListRanges) {
        if (crt::EqualNoCase(name, list.name)) return list.range;
    }
    return {};
}

std::wstring CommandRangeLabel(CommandIdRange range) {
    return L"(" + std::to_wstring(range.first) + L" - " + std::to_wstring(range.last) + L")";
}

CommandDetails ReadCommandDetails(const CommandListLine& row) {
    CommandDetails details;
    details.id = crt::Wtoi(row[kCommandColumnId]);
    const CommunicationCode communication = CommunicationCode::Read(row[kCommandColumnCommunication]);
    details.communicationMode = static_cast<int32_t>(communication.mode);
    details.currentFolder = communication.currentFolder;
    details.selectedItems = communication.selectedItems;
    details.targetFolder = communication.targetFolder;
    const ConditionCode condition = ConditionCode::Read(row[kCommandColumnCondition]);
    details.folderCondition = condition.folderCondition;
    details.selectionRule = condition.selectionRule;
    details.virtualRule = condition.virtualRule;
    details.needsFile = condition.needsFile;
    details.needsFolder = condition.needsFolder;
    details.commandLine = row[kCommandColumnCommandLine];
    details.comment = row[kCommandColumnComment];
    return details;
}

std::wstring CommunicationText(const CommandDetails& details) {
    CommunicationCode code;
    code.mode = static_cast<Mode>(std::clamp(details.communicationMode, 0, static_cast<int32_t>(Mode::SharedMemory)));
    code.currentFolder = details.currentFolder == 1;
    code.selectedItems = details.selectedItems == 1;
    code.targetFolder = details.targetFolder == 1;
    return code.Write();
}

std::wstring ConditionText(const CommandDetails& details) {
    ConditionCode code;
    code.folderCondition = details.folderCondition == 1 ? 1 : 0;
    code.selectionRule = details.selectionRule == 1 ? 1 : 0;
    code.virtualRule = details.virtualRule == 1 ? 1 : 0;
    code.needsFile = details.needsFile == 1;
    code.needsFolder = details.needsFolder == 1;
    return code.Write();
}

CommandDetailStates EnabledDetails(const CommandDetails& details) {
    return {details.communicationMode == static_cast<int32_t>(Mode::DragAndDrop), details.selectionRule == 0,
            details.folderCondition == 1};
}

const std::wstring& CommandListDocument::Text(int row, int column) const {
    if (!Valid(row) || column < 0 || column >= kCommandColumnComment + 1) return kNoText;
    return rows_[static_cast<size_t>(row)][static_cast<size_t>(column)];
}

bool CommandListDocument::Load(const std::wstring& path) {
    rows_.clear();
    return ReadCommandListLines(path, rows_);
}

void CommandListDocument::SetId(int row, int32_t id) {
    if (Valid(row)) rows_[static_cast<size_t>(row)][kCommandColumnId] = std::to_wstring(id);
}

void CommandListDocument::SetCommunication(int row, const CommandDetails& details) {
    if (Valid(row)) rows_[static_cast<size_t>(row)][kCommandColumnCommunication] = CommunicationText(details);
}

void CommandListDocument::SetCondition(int row, const CommandDetails& details) {
    if (Valid(row)) rows_[static_cast<size_t>(row)][kCommandColumnCondition] = ConditionText(details);
}

void CommandListDocument::SetCommandLine(int row, const std::wstring& text) {
    if (Valid(row)) rows_[static_cast<size_t>(row)][kCommandColumnCommandLine] = text;
}

void CommandListDocument::SetComment(int row, const std::wstring& text) {
    if (Valid(row)) rows_[static_cast<size_t>(row)][kCommandColumnComment] = text;
}

void CommandListDocument::WriteDetails(int row, const CommandDetails& details) {
    SetId(row, details.id);
    SetCommunication(row, details);
    SetCondition(row, details);
    SetCommandLine(row, details.commandLine);
    SetComment(row, details.comment);
}

int32_t CommandListDocument::FreeId() const {
    std::unordered_set<std::wstring> shown;
    for (const CommandListLine& row : rows_) shown.insert(row[kCommandColumnId]);
    for (int64_t id = range_.first; id <= range_.last; ++id) {
        if (!shown.contains(std::to_wstring(id))) return static_cast<int32_t>(id);
    }
    return range_.first;
}

int CommandListDocument::Add() {
    rows_.push_back({std::to_wstring(FreeId()), L"", L"---", L"New command", L"Comment"});
    return Count() - 1;
}

int CommandListDocument::Delete(int row) {
    if (!Valid(row)) return -1;
    rows_.erase(rows_.begin() + row);
    return std::min(row, Count() - 1);
}

std::optional<CommandRowError> CommandListDocument::FirstError() const {
    for (int row = 0; row < Count(); ++row) {
        const CommandListLine& line = rows_[static_cast<size_t>(row)];
        const int32_t id = crt::Wtoi(line[kCommandColumnId]);
        if (id < range_.first || id > range_.last) {
            return CommandRowError{
                row, L"Error of ID range!\n" + std::to_wstring(range_.first) + L"-" + std::to_wstring(range_.last)};
        }
        if (line[kCommandColumnCommandLine].empty()) return CommandRowError{row, L"Command string is required."};
        if (line[kCommandColumnComment].empty()) return CommandRowError{row, L"Commment is required."};
    }
    return std::nullopt;
}

std::vector<uint8_t> CommandListDocument::FileBytes() const {
    std::vector<uint8_t> bytes{0xFF, 0xFE};
    for (const CommandListLine& row : rows_) {
        for (size_t column = 0; column < row.size(); ++column) {
            if (column > 0) AppendUtf16(bytes, L"\t");
            AppendUtf16(bytes, row[column]);
        }
        AppendUtf16(bytes, L"\r\n");
    }
    return bytes;
}

bool CommandListDocument::Save(const std::wstring& path) const {
    return WriteWholeFile(path, FileBytes());
}
