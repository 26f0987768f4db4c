#include "definitions/CommandListFile.h"

#include "services/CRuntime.h"
#include "services/TabLine.h"
#include "services/WideStream.h"

namespace {

// One read takes at most 32766 units.
constexpr size_t kLineBuffer = 32767;

}  // namespace

bool ReadCommandListLines(const std::wstring& path, std::vector<CommandListLine>& lines) {
    WideStream stream;
    if (!stream.Open(path)) return false;
    std::wstring line;
    while (stream.ReadLine(line, kLineBuffer)) {
        // The trim comes before the split: an empty comment takes its tab along and the line
        // then reads as the four-field form.
        std::vector<std::wstring> fields;
        const TabLineKind kind = SplitTabLine(line, fields);
        if (kind == TabLineKind::Comment) continue;
        if (kind == TabLineKind::End) break;
        if (fields.size() == 5) {
            lines.push_back({fields[0], fields[1], fields[2], fields[3], fields[4]});
        } else if (fields.size() == 4) {
            lines.push_back({fields[0], L"", fields[1], fields[2], fields[3]});
        }
    }
    return true;
}

bool ReadCommandList(const std::wstring& path, std::vector<CommandListEntry>& entries) {
    std::vector<CommandListLine> lines;
    if (!ReadCommandListLines(path, lines)) return false;
    for (CommandListLine& line : lines) {
        entries.push_back(
            {crt::Wtoi(line[0]), std::move(line[1]), std::move(line[2]), std::move(line[3]), std::move(line[4])});
    }
    return true;
}
