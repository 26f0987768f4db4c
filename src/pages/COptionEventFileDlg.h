// The pages that bind the host's events to files, one fixed row per event: a sound to play or a
// script to run. Each file comes from one folder and is kept by its bare name.
#pragma once

#include "app/OptionPage.h"
#include "pages/EventFileRows.h"
#include "ui/ListView.h"

class COptionEventFileDlg : public OptionPage {
public:
    COptionEventFileDlg(int templateId, AppServices& app, const EventFileRows& rows);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    // The selected row, after telling the user when there is none.
    int SelectedRow() const;
    void ChooseFile() const;
    void ClearFile() const;

    const EventFileRows& rows_;
    ui::ListView list_;
};
