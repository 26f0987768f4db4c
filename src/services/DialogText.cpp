#include "services/DialogText.h"

#include <string_view>
#include <utility>

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/DialogLanguage.h"
#include "services/Format.h"
#include "services/PathHelpers.h"
#include "services/TextFileReader.h"
#include "services/TabLine.h"
#include "services/WholeFileWriter.h"
#include "services/WideStream.h"

namespace {

constexpr uint32_t kLineLimit = 32767;
constexpr int32_t kNoControl = -1;
constexpr const wchar_t* kComboClass = L"ComboBox";
constexpr const wchar_t* kComboStart = L"ComboBoxStart";

// Control text is kept to one line in the file; combo entries are written as they stand.
constexpr std::pair<std::wstring_view, std::wstring_view> kEscapes[] = {
    {L"\n", L"\\n"},
    {L"\r", L"\\r"},
    {L"\t", L"\\t"},
};

std::wstring Escape(std::wstring text) {
    for (const auto& [plain, escaped] : kEscapes) crt::Replace(text, plain, escaped);
    return text;
}

std::wstring Unescape(std::wstring text) {
    for (const auto& [plain, escaped] : kEscapes) crt::Replace(text, escaped, plain);
    return text;
}

bool LeftOut(const std::wstring& className) {
    return className == L"SysListView32" || className == L"SysTabControl32" || className == L"Edit";
}

// What one line asks for, given its fields; a line of any other shape asks for nothing.
void ParseLine(const std::vector<std::wstring>& fields, bool first, std::vector<DialogTextOperation>& operations) {
    using Kind = DialogTextOperation::Kind;
    if (fields.size() == 1) {
        if (first) operations.push_back({Kind::SetTitle, 0, fields[0]});
        return;
    }
    if (fields.size() != 2 && fields.size() != 3) return;
    int32_t id = crt::Wtoi(fields[0]);
    if (id == kNoControl) return;
    if (fields.size() == 2) {
        if (fields[1] == kComboStart) operations.push_back({Kind::ResetCombo, id, L""});
    } else if (fields[1] == kComboClass) {
        operations.push_back({Kind::AddComboEntry, id, fields[2]});
    } else {
        operations.push_back({Kind::SetControlText, id, Unescape(fields[2])});
    }
}

}  // namespace

DialogTextLocation LocateDialogText(const std::wstring& programPath, const std::wstring& tag, int32_t dialogId) {
    PathParts program = SplitPath(programPath);
    return {crt::Format(L"%s%s%s\\%s", program.drive, program.directory, tag, program.name),
            crt::Format(L"%s%s%s\\%s\\%d.txt", program.drive, program.directory, tag, program.name, dialogId)};
}

bool ReadDialogText(const std::wstring& path, std::vector<DialogTextOperation>& operations) {
    TextFileReader reader;
    if (!reader.Open(path)) return false;
    // One buffer for all lines, as the reader expects: behind the last line it hands out one empty
    // line more, which splits to nothing. A line that fills the limit is closed two units further on.
    std::vector<wchar_t> buffer(kLineLimit + 2, 0);
    bool first = true;
    while (reader.ReadLine(buffer.data(), kLineLimit)) {
        std::vector<std::wstring> fields;
        const TabLineKind kind = SplitTabLine(buffer.data(), fields);
        if (kind == TabLineKind::Comment) continue;
        if (kind == TabLineKind::End) break;
        ParseLine(fields, std::exchange(first, false), operations);
    }
    return true;
}

void ApplyDialogText(const std::vector<DialogTextOperation>& operations, DialogTextTarget& target) {
    using Kind = DialogTextOperation::Kind;
    for (const DialogTextOperation& operation : operations) {
        switch (operation.kind) {
            case Kind::SetTitle:
                target.SetTitle(operation.text);
                break;
            case Kind::ResetCombo:
                target.ResetCombo(operation.id);
                break;
            case Kind::AddComboEntry:
                target.AddComboEntry(operation.id, operation.text);
                break;
            case Kind::SetControlText:
                target.SetControlText(operation.id, operation.text);
                break;
        }
    }
}

void WriteDialogText(const DialogTextLocation& location, const DialogContent& content) {
    MakeDirectory(location.directory);
    std::vector<uint8_t> bytes = {0xFF, 0xFE};
    AppendUtf16(bytes, content.title + L"\r\n");
    for (const DialogControl& control : content.controls) {
        if (LeftOut(control.className)) continue;
        if (control.className == kComboClass) {
            AppendUtf16(bytes, crt::Format(L"%d\t%s\r\n", control.id, kComboStart));
            for (const std::wstring& entry : control.comboEntries) {
                AppendUtf16(bytes, crt::Format(L"%d\t%s\t", control.id, control.className) + entry + L"\r\n");
            }
        } else if (!control.text.empty()) {
            AppendUtf16(bytes, crt::Format(L"%d\t%s\t%s\r\n", control.id, control.className, Escape(control.text)));
        }
    }
    // Whole or not at all: a template cut short would be read back as a translation on every later
    // opening.
    WriteWholeFile(location.path, bytes);
}

void LocaliseDialogText(DialogLanguage& language, int32_t dialogId, LocalisableDialog& dialog) {
    if (!language.UsesTextFiles()) return;
    DialogTextLocation location =
        LocateDialogText(platform::Current().environment.ModuleFileName(), language.tag(), dialogId);
    std::vector<DialogTextOperation> operations;
    if (ReadDialogText(location.path, operations)) {
        ApplyDialogText(operations, dialog);
    } else {
        WriteDialogText(location, dialog.Content());
    }
}
