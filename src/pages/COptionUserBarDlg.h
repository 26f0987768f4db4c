// The user bars: the names and folders of the nine bars, their shared style, the order of their items
// and what a click or Enter on an item does.
#pragma once

#include "app/OptionPage.h"
#include "pages/ClickTable.h"
#include "pages/UserBars.h"
#include "ui/ListView.h"

class COptionUserBarDlg : public OptionPage {
public:
    explicit COptionUserBarDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    // Enter in the page stores it at once, then acts on the whole dialog as elsewhere.
    void OnOK() override;

private:
    void FillSlots(const std::vector<std::wstring>& headers);
    void FillClicks();
    void ShowClick(int row) const;
    void ChangeClick();
    // The selected slot, or -1 after telling the user that none is.
    int SelectedSlot() const;
    void EditSlot();
    void DeleteSlot();
    void EnableMultiSelect() const;

    ui::ListView slots_;
    ui::ListView clicks_;
    ClickTable table_;
    BarStyle style_;
};
