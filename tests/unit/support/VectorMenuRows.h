// The menu editor's list kept in a vector, for tests of the row actions and of the dialogs' logic.
#pragma once

#include <algorithm>
#include <vector>

#include "definitions/MenuDefinition.h"

class VectorMenuRows : public MenuRows {
public:
    explicit VectorMenuRows(std::vector<MenuLine> lines = {}, int selected = -1)
        : lines(std::move(lines)), selected(selected) {}

    int Count() const override { return static_cast<int>(lines.size()); }
    MenuLine Line(int row) const override { return lines.at(static_cast<size_t>(row)); }
    void SetLine(int row, const MenuLine& line) override { lines.at(static_cast<size_t>(row)) = line; }
    void Insert(int row, const MenuLine& line) override {
        lines.insert(lines.begin() + std::clamp(row, 0, Count()), line);
        if (selected >= row) ++selected;
    }
    void Delete(int row) override {
        lines.erase(lines.begin() + row);
        selected = selected == row ? -1 : selected - (selected > row);
    }
    int Selected() const override { return selected; }
    void Select(int row) override { selected = row >= 0 && row < Count() ? row : -1; }

    std::vector<MenuLine> lines;
    int selected;
};
