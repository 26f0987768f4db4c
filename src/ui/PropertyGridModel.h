// What a property grid shows and edits, apart from its window: a tree of groups whose leaves are
// values of four kinds, each remembering the value it was given so that an edited one can be told
// apart, and the rows that the window draws and the keyboard walks (the expanded part of the tree).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/LogFont.h"

namespace ui {

enum class PropertyKind { Group, Font, Colour, Boolean, Text };

struct Property {
    PropertyKind kind = PropertyKind::Group;
    std::wstring name;
    int parent = -1;  // -1 at the top
    std::vector<int> children;
    bool expanded = false;  // groups only
    // The value of its kind; the others stay as they are.
    LogFont font{};
    uint32_t colour = 0;  // 0x00BBGGRR
    bool check = false;
    std::wstring text;
    // Set once the value differs from the one the property was made with.
    bool modified = false;
};

// One line of the grid: a property and how deep it sits (0 at the top).
struct GridRow {
    int id;
    int depth;
    bool operator==(const GridRow&) const = default;
};

// The keys the grid acts on by itself, whatever the property.
enum class GridKey { Up, Down, Home, End, PageUp, PageDown, Left, Right, Expand, Collapse };

class PropertyGridModel {
public:
    // Each adds as the last child of parent (-1 for the top) and gives the new property's id.
    int AddGroup(int parent, std::wstring name, bool expanded);
    int AddFont(int parent, std::wstring name, const LogFont& font);
    int AddColour(int parent, std::wstring name, uint32_t colour);
    int AddBoolean(int parent, std::wstring name, bool check);
    int AddText(int parent, std::wstring name, std::wstring text);
    // No properties, no selection.
    void Clear();

    int size() const { return static_cast<int>(properties_.size()); }
    const Property& at(int id) const { return properties_.at(static_cast<size_t>(id)); }
    const std::vector<int>& top() const { return top_; }
    // Every property that is not a group, depth first in the order they were added.
    std::vector<int> Leaves() const;

    // A new value; a different kind of property, or a group, is left as it is.
    void SetFont(int id, const LogFont& font);
    void SetColour(int id, uint32_t colour);
    void SetBoolean(int id, bool check);
    void SetText(int id, std::wstring text);

    // The rows inside expanded groups, top to bottom.
    const std::vector<GridRow>& Rows() const;
    void SetExpanded(int id, bool expanded);
    // The selected property, -1 for none; one hidden in a collapsed group selects its visible group.
    int selected() const { return selected_; }
    void Select(int id);
    int SelectedRow() const;
    // Moves the selection or folds a group; pageRows is how many rows a page holds. False when
    // nothing changed.
    bool OnKey(GridKey key, int pageRows = 1);

private:
    int Add(int parent, Property property);
    void AddRows(const std::vector<int>& ids, int depth) const;
    std::vector<Property> properties_;
    std::vector<int> top_;
    int selected_ = -1;
    std::vector<Property> originals_;  // each as it was added
    mutable std::vector<GridRow> rows_;
    mutable bool rowsValid_ = false;
};

// How a value reads in the grid: the colour as #RRGGBB, the font as its face and size in points at
// the given dots per inch.
std::wstring ColourText(uint32_t colour);
std::wstring FontText(const LogFont& font, int dpi);

}  // namespace ui
