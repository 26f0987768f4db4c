#include "definitions/CommandListFile.h"

#include "services/CRuntime.h"
#include "services/TabLine.h"
#include "services/WideStream.h"

namespace {

// One read takes at most 32766 units.
constexpr size_t kLineBuffer = 32767;

}  // namespace

bool ReadCommandList(const std::wstring& path, std::vector<CommandListEntry>& entries) {
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
        const size_t count = fields.size();
        if (count == 5) {
            entries.push_back({crt::Wtoi(fields[0]), fields[1], fields[2], fields[3], fields[4]});
        } else if (count == 4) {
            entries.push_back({crt::Wtoi(fields[0]), L"", fields[1], fields[2], fields[3]});
        }
    }
    return true;
}
