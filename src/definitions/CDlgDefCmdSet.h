// The editor of one command list: the list is the document, and the controls below it show the row
// with the focus and write every change straight back into it. OK checks every row and writes the
// file; Cancel leaves it untouched.
#pragma once

#include <string>

#include "definitions/CommandListEditing.h"
#include "definitions/CDlgDefinitionEditor.h"
#include "ui/ListView.h"

struct AppServices;

class CDlgDefCmdSet : public CDlgDefinitionEditor {
public:
    explicit CDlgDefCmdSet(AppServices& app);

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    void OnOK() override;

private:
    // The row with both focus and selection, -1 for none.
    int CurrentRow() const;
    void SelectRow(int row);
    void RowsChanged();
    void ShowCurrentRow();
    void EnableDetails(bool enable);
    void EnableDependents();
    // Takes the controls' values and hands them to write, which puts them into the current row; nothing
    // when a field is refused.
    template <class Write>
    void WriteThrough(Write write);
    void AddRow();
    void DeleteRow();
    void InsertMacro();

    CommandListDocument document_;
    CommandDetails details_;
    ui::ListView list_;
    // Set while the controls are filled, whose change notices are not edits.
    bool filling_ = false;
};
