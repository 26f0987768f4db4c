// Apply: every opened page validates and stores its settings in one fixed order, and then every
// running host window is told which groups of settings to reread.
#pragma once

#include <cstdint>
#include <set>
#include <string>

// What the host hears around the codes of one Apply.
constexpr uint16_t kSeriesBegin = 48999;
constexpr uint16_t kSeriesEnd = 49099;

// The codes the pages have recorded. A code recorded twice is sent once, and the set is kept for
// the life of the dialog, so a second Apply sends all the codes of the first again.
class PendingChanges {
public:
    void Record(uint16_t code) { codes_.insert(code); }
    const std::set<uint16_t>& codes() const { return codes_; }

private:
    std::set<uint16_t> codes_;
};

// The pages as Apply sees them.
class ApplyPages {
public:
    virtual ~ApplyPages() = default;
    virtual bool Opened(int pageId) const = 0;
    // The page's step: validate, store, record its code. False when it refused; it has told the user.
    virtual bool ApplyPage(int pageId, PendingChanges& changes) = 0;
};

// Runs the step of every opened page, by page id from the first to the last, and stops at the first
// refusal, keeping what was stored before it. After a full pass the selected tree item becomes
// Start and the host windows are told. True when every step passed.
bool RunApply(ApplyPages& pages, PendingChanges& changes, int32_t startValue, const std::wstring& commandOptionRoot);

// To every host window in the system's order: 48999, each recorded code, 49099, each sent and
// waited for. Sent even when no code was recorded.
void BroadcastChanges(const PendingChanges& changes);
