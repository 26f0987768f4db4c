// The pane the option dialog shows for a group of pages: a read-only text that explains the group.
#pragma once

#include <string>

#include "app/OptionPage.h"

class COptionNoneDlg : public OptionPage {
public:
    explicit COptionNoneDlg(AppServices& app);

    // The explanation shown; the dialog sets it and calls UpdateData(false).
    std::wstring text;

protected:
    void DoDataExchange(ui::DataExchange& dx) override;
};
