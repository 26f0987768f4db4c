// The incremental search page: how long typed letters keep searching, and where the C/Migemo library
// and its dictionary are. The host loads the library; this program only keeps its folders.
#pragma once

#include "app/OptionPage.h"
#include "ui/BrowseEdit.h"

class COptionInclimentalSerchDlg : public OptionPage {
public:
    explicit COptionInclimentalSerchDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnInitDialog() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableMigemoFields() const;

    ui::BrowseEdit library_;
    ui::BrowseEdit dictionary_;
};
