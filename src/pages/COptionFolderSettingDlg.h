// The folder settings page: per-folder view rules in three lists (exact paths, wildcard patterns,
// regular expressions), each rule edited in the rule editor.
#pragma once

#include "app/OptionPage.h"
#include "pages/FolderRules.h"
#include "ui/ListView.h"

class COptionFolderSettingDlg : public OptionPage {
public:
    explicit COptionFolderSettingDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    ui::ListView List(RuleKind kind) const;
    void SetUpList(RuleKind kind) const;
    // Shows the kind's rules again, the row given selected and in view.
    void ShowRows(RuleKind kind, int select) const;
    // Opens the editor on the rule; false when the user cancelled.
    bool EditRule(RuleKind& kind, FolderState& rule, bool locked);
    void ServeHostRequest();
    void AddRule(RuleKind kind);
    void ChangeRule(RuleKind kind);
    void DeleteRule(RuleKind kind);
    void MoveRule(RuleKind kind, int step);

    FolderRules rules_;
};
