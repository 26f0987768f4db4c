#include "definitions/RunDefinition.h"

#include <algorithm>

#include "services/CRuntime.h"
#include "services/Tokenizer.h"
#include "services/WholeFileWriter.h"
#include "services/WideStream.h"

namespace {

// The dialogs read at most 32766 units a line.
constexpr size_t kEditorLineBuffer = 32767;

constexpr wchar_t kExRunHeader[] =
    L"CommandLineOption=?SelFile?\r\nMultiCommandMode=0\r\nShiftSilentMode=0\r\nBootDir=\r\nBootMode=0\r\nOpenMode="
    L"0\r\n";

// Anything but exactly 1 is off.
int32_t Flag(const std::wstring& value) {
    return crt::Wtoi(value) == 1 ? 1 : 0;
}

void AppendLine(std::vector<uint8_t>& bytes, const std::wstring& key, const std::wstring& value) {
    AppendUtf16(bytes, key + L"=" + value + L"\r\n");
}

std::vector<uint8_t> StartOfFile() {
    std::vector<uint8_t> bytes;
    AppendUtf16(bytes, L"\uFEFF");
    return bytes;
}

}  // namespace

bool ReadDefinitionLines(const std::wstring& path, size_t bufferChars, const DefinitionLineVisitor& visit) {
    WideStream stream;
    if (!stream.Open(path)) return false;
    std::wstring line;
    while (stream.ReadLine(line, bufferChars)) {
        crt::Replace(line, L"\uFEFF", L"");
        crt::Replace(line, L"\r\n", L"");
        std::replace(line.begin(), line.end(), L'\t', L' ');
        line = crt::Trim(line);
        if (line.empty() || line.starts_with(L"//")) continue;
        if (line == L"EOF") break;
        const std::wstring key = LeftOfSeparator(line, L'=', true);
        if (key.empty()) continue;
        if (!visit(key, RightOfSeparator(line, L'=', true))) break;
    }
    return true;
}

bool ReadRunDefinition(const std::wstring& path, RunDefinition& definition) {
    RunDefinition read = definition;
    const bool opened =
        ReadDefinitionLines(path, kEditorLineBuffer, [&](const std::wstring& key, const std::wstring& value) {
            if (key == L"commandlineoption")
                read.commandLine = value;
            else if (key == L"openmode")
                read.openMode = crt::Wtoi(value);
            else if (key == L"multicommandmode")
                read.multiCommandMode = Flag(value);
            else if (key == L"shiftsilentmode")
                read.shiftSilentMode = Flag(value);
            else if (key == L"bootdir")
                read.bootDir = value;
            else if (key == L"bootmode")
                read.bootMode = crt::Wtoi(value);
            else if (key == L"run")
                read.run = value;
            return true;
        });
    if (opened) definition = read;
    return opened;
}

bool ReadExRunDefinition(const std::wstring& path, std::vector<ExRunRow>& rows) {
    std::vector<ExRunRow> read;
    std::wstring filter;
    const bool opened =
        ReadDefinitionLines(path, kEditorLineBuffer, [&](const std::wstring& key, const std::wstring& value) {
            if (key == L"filter")
                filter = value;
            else if (key == L"exrun")
                read.push_back({filter, value});
            return true;
        });
    if (opened) rows = std::move(read);
    return opened;
}

std::vector<uint8_t> RunDefinitionBytes(const RunDefinition& definition) {
    std::vector<uint8_t> bytes = StartOfFile();
    AppendLine(bytes, L"CommandlineOption", definition.commandLine);
    AppendLine(bytes, L"OpenMode", std::to_wstring(definition.openMode));
    AppendLine(bytes, L"MultiCommandMode", std::to_wstring(definition.multiCommandMode));
    AppendLine(bytes, L"ShiftSilentMode", std::to_wstring(definition.shiftSilentMode));
    AppendLine(bytes, L"BootDir", definition.bootDir);
    AppendLine(bytes, L"BootMode", std::to_wstring(definition.bootMode));
    AppendLine(bytes, L"Run", definition.run);
    return bytes;
}

std::vector<uint8_t> ExRunDefinitionBytes(const std::vector<ExRunRow>& rows) {
    std::vector<uint8_t> bytes = StartOfFile();
    AppendUtf16(bytes, kExRunHeader);
    for (const ExRunRow& row : rows) {
        AppendLine(bytes, L"Filter", row.filter);
        AppendLine(bytes, L"ExRun", row.command);
    }
    return bytes;
}

bool WriteRunDefinition(const std::wstring& path, const RunDefinition& definition) {
    return WriteWholeFile(path, RunDefinitionBytes(definition));
}

bool WriteExRunDefinition(const std::wstring& path, const std::vector<ExRunRow>& rows) {
    return WriteWholeFile(path, ExRunDefinitionBytes(rows));
}
