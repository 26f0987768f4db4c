#include "definitions/MenuFolder.h"

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/WideStream.h"

namespace {

// The first line is read into a buffer of this many units, its end included.
constexpr size_t kExplanationBuffer = 255;

}  // namespace

std::wstring MenuFileExplanation(const std::wstring& path) {
    WideStream stream;
    std::wstring line;
    if (!stream.Open(path) || !stream.ReadLine(line, kExplanationBuffer)) return L"<No explanation>";
    crt::Replace(line, L"\xFEFF", L"");
    crt::Replace(line, L"\r\n", L"");
    crt::Replace(line, L"\t", L" ");
    crt::Replace(line, L"\x2605", L"");
    return crt::Trim(line);
}

std::vector<MenuFileEntry> ListMenuFiles(const std::wstring& folder) {
    std::vector<MenuFileEntry> entries;
    for (const platform::FindData& found :
         platform::Current().files.FindAll(folder + L"*", platform::FindStyle::Plain)) {
        if (found.name == L"." || found.name == L".." || (found.attributes & platform::kAttributeDirectory)) continue;
        entries.push_back({found.name, MenuFileExplanation(folder + found.name)});
    }
    return entries;
}
