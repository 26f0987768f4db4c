#include "services/MessageCatalog.h"

#include <vector>

#include "platform/Platform.h"
#include "services/BitMask.h"
#include "services/CRuntime.h"
#include "services/MessageIds.h"
#include "services/PathHelpers.h"
#include "services/TabLine.h"
#include "services/WideStream.h"

namespace {

constexpr size_t kLineBuffer = 32768;

}  // namespace

std::wstring MessageFilePath(const std::wstring& programDirectory, const std::wstring& languageTag) {
    return FullPath(programDirectory + L"..\\..\\Lang\\Msg" + languageTag + L".txt");
}

int MessageCatalog::Load() {
    texts_.clear();
    WideStream stream;
    if (!stream.Open(path_, true)) {
        platform::Current().prompts.ShowMessage(L"Cannot open message file.\n" + path_, platform::kStyleOk);
        return 0;
    }
    std::wstring line;
    while (stream.ReadLine(line, kLineBuffer)) {
        std::vector<std::wstring> fields;
        const TabLineKind kind = SplitTabLine(line, fields, LineFeedEscapes::Unescaped);
        if (kind == TabLineKind::Comment) continue;
        if (kind == TabLineKind::End) break;
        if (fields.size() != 2) continue;
        texts_.emplace(static_cast<uint16_t>(crt::Wtoi(fields[0])), fields[1]);
    }
    return texts_.empty() ? 0 : 1;
}

std::wstring MessageCatalog::Get(uint16_t id) {
    if (texts_.empty()) Load();
    auto found = texts_.find(id);
    return found == texts_.end() ? kMissingText : found->second;
}

int MessageCatalog::Confirm(int32_t messageSetting, uint16_t id) {
    if ((static_cast<uint32_t>(messageSetting) & BitMask((id - kMsgConfirmationClosing) / 2)) == 0) return -1;
    std::wstring body = Get(static_cast<uint16_t>(id + 1)) + L"\n\n" + Get(kMsgConfirmationClosing);
    return platform::Current().prompts.Ask(body, Get(id), platform::kStyleYesNo);
}
