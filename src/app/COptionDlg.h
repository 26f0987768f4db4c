// The option dialog: the tree of pages on the left, the selected page (or the explanation of the
// selected group) in the frame on the right, and Apply, OK and Cancel below.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "app/ApplyChain.h"
#include "app/COptionNoneDlg.h"
#include "app/OptionPage.h"
#include "app/OptionPageTable.h"
#include "ui/Dialog.h"
#include "ui/TreeView.h"

struct AppServices;

// Answered with 1 and otherwise ignored, whatever the host means by it.
constexpr UINT kHostProbeMessage = 0x8030;

// The page object of its own class that serves a page of the table; null for an id of no page.
std::unique_ptr<OptionPage> MakeOptionPage(const OptionPageInfo& page, AppServices& app);

class COptionDlg : public ui::Dialog, private ApplyPages {
public:
    explicit COptionDlg(AppServices& app);
    ~COptionDlg() override;

    // The page object of an id, null for a group or an unknown id.
    OptionPage* Page(int id) const;
    // Every page object, in the order of OptionPages().
    const std::vector<std::unique_ptr<OptionPage>>& Pages() const { return pages_; }
    // The page in the frame now, the group pane included; null before the first selection.
    OptionPage* CurrentPage() const { return current_; }
    COptionNoneDlg& NonePage() { return none_; }
    // The id of the selected tree item, which a successful Apply stores as Start.
    int32_t StartValue() const { return start_; }

protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    void OnTimer(UINT_PTR id) override;

private:
    void ReadRequests();
    // False when a label list has the wrong count; the tree then holds the roots before it.
    bool BuildTree();
    void SwitchPage();
    void ShowHelp();
    // The opened pages store their settings and the host is told; the one place OK and the Apply
    // button share.
    void Apply();
    bool Opened(int pageId) const override;
    bool ApplyPage(int pageId, PendingChanges& changes) override;
    // Destroys the windows of the opened pages, the group pane last; their flags stay set.
    void ClosePages();

    AppServices& app_;
    std::vector<std::unique_ptr<OptionPage>> pages_;
    COptionNoneDlg none_;
    ui::TreeView tree_;
    OptionPage* current_ = nullptr;
    int32_t start_ = kDefaultGroupId;
    HTREEITEM toSelect_ = nullptr;
};
