// Colours and fonts: the list font, every colour of the list and the docking windows, the rules that
// colour files by attribute and the extension groups, in one property grid; palettes that fill it
// anew; and the host's skin.
#pragma once

#include "app/OptionPage.h"
#include "pages/ColorGrid.h"
#include "ui/PropertyGrid.h"

class COptionColorGridDlg : public OptionPage {
public:
    explicit COptionColorGridDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;
    ui::PropertyGrid& grid() { return grid_; }

protected:
    bool LoadGroups() override;
    bool OnCommand(int id, int code) override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    void OnCancel() override;

private:
    bool CreateGrid();
    // The grid shows the store's values anew, nothing marked as edited. False when a label list is short.
    bool Rebuild();
    void UsePalette(ColorPalette palette);

    ui::PropertyGrid grid_;
    ColorGridLabels labels_;
    int32_t skinRadio_ = 0;
};
