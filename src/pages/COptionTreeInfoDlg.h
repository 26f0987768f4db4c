// The folder tree page: how the tree looks, what a click on a folder does, how the tree follows the
// active list, and which folders are its roots.
#pragma once

#include "app/OptionPage.h"
#include "pages/ClickTable.h"
#include "pages/FolderTree.h"
#include "ui/ListView.h"

class COptionTreeInfoDlg : public OptionPage {
public:
    explicit COptionTreeInfoDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    void FillClicks();
    void ShowClick(int row) const;
    void ChangeClick();
    // The list shows the roots anew, with the row selected (none for -1).
    void ShowRoots(int selected) const;
    void AddRoot();
    void EnableDependents() const;

    ui::ListView clicks_;
    ui::ListView roots_;
    ClickTable table_;
    KnownFolderCatalog catalog_;
    TreeRootList rootList_;
};
