// Thumbnails: what draws them, the text files drawn as text and their font, and the four sizes.
#pragma once

#include "app/OptionPage.h"

class COptionThumbDlg : public OptionPage {
public:
    explicit COptionThumbDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    void EnableDrawingFields() const;
};
