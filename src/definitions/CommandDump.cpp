#include "definitions/CommandDump.h"

#include "services/Format.h"
#include "services/PathHelpers.h"
#include "services/WholeFileWriter.h"
#include "services/WideStream.h"

std::wstring CommandDumpRow(CommandDumpForm form, uint16_t id, const std::wstring& treeText,
                            const std::wstring& commandText) {
    const wchar_t* format =
        form == CommandDumpForm::Html ? L"<tr><td>%d</td><td>%s</td><td>%s</td></tr>\r\n" : L"%d\t%s\t%s\r\n";
    return crt::Format(format, id, treeText, commandText);
}

std::wstring CommandDumpMissingText(const std::wstring& treeText, uint16_t id) {
    return crt::Format(L"Cannot get command string.(%s:%d)", treeText, id);
}

std::wstring CommandDumpPath(const std::wstring& programDirectory, CommandDumpForm form) {
    const wchar_t* name = form == CommandDumpForm::Html ? L"AllCommand.html" : L"AllCommand.txt";
    return FullPath(programDirectory + L"..\\..\\" + name);
}

void SaveCommandDump(const std::wstring& path, const std::wstring& dump) {
    if (dump.size() <= 1) return;
    std::vector<uint8_t> bytes;
    AppendUtf16(bytes, dump);
    WriteWholeFile(path, bytes);
}
