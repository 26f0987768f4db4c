// The line editor of one menu file. Its list is the whole document: each row one line of the file,
// nesting shown only in the saved file. It has no OK or Cancel: closing drops what was not saved.
#pragma once

#include <string>
#include <vector>

#include "definitions/MenuDefinition.h"
#include "definitions/CDlgDefinitionEditor.h"
#include "ui/ListView.h"

struct AppServices;

class CDlgMenuEdit : public CDlgDefinitionEditor {
public:
    explicit CDlgMenuEdit(AppServices& app);

protected:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    // The rows, shown by the list control, which asks for each text as it draws it: a file of
    // tens of thousands of lines is there at once.
    class ListRows : public MenuRows {
    public:
        explicit ListRows(const ui::ListView& list) : list_(list) {}
        int Count() const override { return static_cast<int>(lines_.size()); }
        MenuLine Line(int row) const override { return lines_[static_cast<size_t>(row)]; }
        void SetLine(int row, const MenuLine& line) override;
        void Insert(int row, const MenuLine& line) override;
        void Delete(int row) override;
        int Selected() const override { return list_.GetSelectedRow(); }
        void Select(int row) override;
        // All rows at once, replacing what was there.
        void Assign(std::vector<MenuLine> lines);
        // The text of a cell, for the list's drawing.
        const std::wstring& Text(int row, int column) const;

    private:
        void Shown() const;

        const ui::ListView& list_;
        std::vector<MenuLine> lines_;
    };

    void Load();
    void AddLine();
    void EditLine();
    void Save();
    void CheckRows();
    void LoadTest();

    ui::ListView list_;
    ListRows rows_{list_};
    MenuLine clipboard_;
};
