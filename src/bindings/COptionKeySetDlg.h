// The key page: the 76 keys of one key mode under one modifier, each bound to a command through the
// picker, cleared or reset to its default; the nine key files are written at Apply.
#pragma once

#include <cstdint>
#include <string>

#include "app/OptionPage.h"
#include "ui/ListView.h"

class COptionKeySetDlg : public OptionPage {
public:
    explicit COptionKeySetDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    void ShowBlock();
    void StoreList();
    void ShowRow(int row, uint16_t id) const;
    // The selected row, or -1 after telling the user that none is.
    int SelectedRowOrTell() const;
    bool AskReset() const;
    void ChangeBlock();
    void EditRow();
    void ClearRow();
    void SaveList();
    void EnableSwitchTime() const;

    ui::ListView list_;
    int32_t set_ = 0;
    int32_t modifier_ = 0;
    std::wstring lastFolder_;
};
