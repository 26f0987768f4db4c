#include "app/ApplyChain.h"

#include "platform/Platform.h"
#include "settings/SettingsStore.h"

namespace {

// The chain runs through the pages in the order of their ids.
constexpr int kFirstChainPage = 2;
constexpr int kLastChainPage = 45;

}  // namespace

bool RunApply(ApplyPages& pages, PendingChanges& changes, int32_t startValue, const std::wstring& commandOptionRoot) {
    for (int id = kFirstChainPage; id <= kLastChainPage; ++id) {
        if (pages.Opened(id) && !pages.ApplyPage(id, changes)) return false;
    }
    DirectWriteInt(commandOptionRoot + L"\\OptionPage", L"Start", startValue);
    BroadcastChanges(changes);
    return true;
}

void BroadcastChanges(const PendingChanges& changes) {
    platform::HostWindows& windows = platform::Current().windows;
    for (platform::WindowRef host : windows.AllHostWindows()) {
        windows.SendCommand(host, kSeriesBegin);
        for (uint16_t code : changes.codes()) windows.SendCommand(host, code);
        windows.SendCommand(host, kSeriesEnd);
    }
}
