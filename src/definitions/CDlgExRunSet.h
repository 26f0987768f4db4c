// The editor of one extension-run definition: a list of extension filters, each with its commands,
// tried from the top. The list is the document; the two edits below it change the focused row as
// they are typed in, and OK writes the whole list.
#pragma once

#include <string>

#include "ui/BrowseEdit.h"
#include "definitions/CDlgDefinitionEditor.h"
#include "ui/ListView.h"

struct AppServices;

class CDlgExRunSet : public CDlgDefinitionEditor {
public:
    explicit CDlgExRunSet(AppServices& app);

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    void OnOK() override;

private:
    int FocusedRow() const { return list_.GetNextItem(-1, LVNI_FOCUSED); }
    void ShowRow(int row);
    void AddRow();
    void MoveRow(int step);
    void DeleteRow();
    void EditChanged(int editId, int column);

    ui::ListView list_;
    ui::BrowseEdit commandBrowse_;
    std::wstring filter_;
    std::wstring command_;
    // Set while the edits are filled from a row, so that filling them does not write back.
    bool showing_ = false;
};
