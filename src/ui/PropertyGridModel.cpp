#include "ui/PropertyGridModel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cwchar>

namespace ui {

namespace {

bool SameFont(const LogFont& a, const LogFont& b) {
    return a.lfHeight == b.lfHeight && a.lfWidth == b.lfWidth && a.lfEscapement == b.lfEscapement &&
           a.lfOrientation == b.lfOrientation && a.lfWeight == b.lfWeight && a.lfItalic == b.lfItalic &&
           a.lfUnderline == b.lfUnderline && a.lfStrikeOut == b.lfStrikeOut && a.lfCharSet == b.lfCharSet &&
           a.lfOutPrecision == b.lfOutPrecision && a.lfClipPrecision == b.lfClipPrecision &&
           a.lfQuality == b.lfQuality && a.lfPitchAndFamily == b.lfPitchAndFamily &&
           std::equal(std::begin(a.lfFaceName), std::end(a.lfFaceName), std::begin(b.lfFaceName));
}

bool SameValue(const Property& a, const Property& b) {
    switch (a.kind) {
        case PropertyKind::Font:
            return SameFont(a.font, b.font);
        case PropertyKind::Colour:
            return a.colour == b.colour;
        case PropertyKind::Boolean:
            return a.check == b.check;
        case PropertyKind::Text:
            return a.text == b.text;
        case PropertyKind::Group:
            break;
    }
    return true;
}

Property Made(PropertyKind kind, std::wstring name) {
    Property p;
    p.kind = kind;
    p.name = std::move(name);
    return p;
}

}  // namespace

int PropertyGridModel::Add(int parent, Property property) {
    const int id = size();
    const bool known =
        parent >= 0 && parent < id && properties_[static_cast<size_t>(parent)].kind == PropertyKind::Group;
    property.parent = known ? parent : -1;
    (known ? properties_[static_cast<size_t>(parent)].children : top_).push_back(id);
    originals_.push_back(property);
    properties_.push_back(std::move(property));
    rowsValid_ = false;
    return id;
}

int PropertyGridModel::AddGroup(int parent, std::wstring name, bool expanded) {
    Property p;
    p.name = std::move(name);
    p.expanded = expanded;
    return Add(parent, std::move(p));
}

int PropertyGridModel::AddFont(int parent, std::wstring name, const LogFont& font) {
    Property p = Made(PropertyKind::Font, std::move(name));
    p.font = font;
    return Add(parent, std::move(p));
}

int PropertyGridModel::AddColour(int parent, std::wstring name, uint32_t colour) {
    Property p = Made(PropertyKind::Colour, std::move(name));
    p.colour = colour;
    return Add(parent, std::move(p));
}

int PropertyGridModel::AddBoolean(int parent, std::wstring name, bool check) {
    Property p = Made(PropertyKind::Boolean, std::move(name));
    p.check = check;
    return Add(parent, std::move(p));
}

int PropertyGridModel::AddText(int parent, std::wstring name, std::wstring text) {
    Property p = Made(PropertyKind::Text, std::move(name));
    p.text = std::move(text);
    return Add(parent, std::move(p));
}

void PropertyGridModel::Clear() {
    properties_.clear();
    originals_.clear();
    top_.clear();
    selected_ = -1;
    rowsValid_ = false;
}

std::vector<int> PropertyGridModel::Leaves() const {
    std::vector<int> leaves;
    std::vector<int> pending(top_.rbegin(), top_.rend());
    while (!pending.empty()) {
        const int id = pending.back();
        pending.pop_back();
        const Property& p = at(id);
        if (p.kind != PropertyKind::Group) leaves.push_back(id);
        pending.insert(pending.end(), p.children.rbegin(), p.children.rend());
    }
    return leaves;
}

void PropertyGridModel::SetFont(int id, const LogFont& font) {
    if (id < 0 || id >= size() || at(id).kind != PropertyKind::Font) return;
    Property& p = properties_[static_cast<size_t>(id)];
    p.font = font;
    p.modified = !SameValue(p, originals_[static_cast<size_t>(id)]);
}

void PropertyGridModel::SetColour(int id, uint32_t colour) {
    if (id < 0 || id >= size() || at(id).kind != PropertyKind::Colour) return;
    Property& p = properties_[static_cast<size_t>(id)];
    p.colour = colour;
    p.modified = !SameValue(p, originals_[static_cast<size_t>(id)]);
}

void PropertyGridModel::SetBoolean(int id, bool check) {
    if (id < 0 || id >= size() || at(id).kind != PropertyKind::Boolean) return;
    Property& p = properties_[static_cast<size_t>(id)];
    p.check = check;
    p.modified = !SameValue(p, originals_[static_cast<size_t>(id)]);
}

void PropertyGridModel::SetText(int id, std::wstring text) {
    if (id < 0 || id >= size() || at(id).kind != PropertyKind::Text) return;
    Property& p = properties_[static_cast<size_t>(id)];
    p.text = std::move(text);
    p.modified = !SameValue(p, originals_[static_cast<size_t>(id)]);
}

void PropertyGridModel::AddRows(const std::vector<int>& ids, int depth) const {
    for (int id : ids) {
        rows_.push_back({id, depth});
        const Property& p = at(id);
        if (p.kind == PropertyKind::Group && p.expanded) AddRows(p.children, depth + 1);
    }
}

const std::vector<GridRow>& PropertyGridModel::Rows() const {
    if (!rowsValid_) {
        rows_.clear();
        AddRows(top_, 0);
        rowsValid_ = true;
    }
    return rows_;
}

void PropertyGridModel::SetExpanded(int id, bool expanded) {
    if (id < 0 || id >= size() || at(id).kind != PropertyKind::Group) return;
    properties_[static_cast<size_t>(id)].expanded = expanded;
    rowsValid_ = false;
    // A selection that has just been folded away moves up to the group.
    if (!expanded) Select(selected_);
}

void PropertyGridModel::Select(int id) {
    if (id < 0 || id >= size()) {
        selected_ = -1;
        return;
    }
    int shown = id;
    for (int p = at(id).parent; p >= 0; p = at(p).parent) {
        if (!at(p).expanded) shown = p;
    }
    selected_ = shown;
}

int PropertyGridModel::SelectedRow() const {
    const std::vector<GridRow>& rows = Rows();
    for (size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].id == selected_) return static_cast<int>(i);
    }
    return -1;
}

bool PropertyGridModel::OnKey(GridKey key, int pageRows) {
    const std::vector<GridRow>& rows = Rows();
    if (rows.empty()) return false;
    const int before = selected_;
    const int last = static_cast<int>(rows.size()) - 1;
    const int row = SelectedRow();
    const int page = std::max(1, pageRows - 1);
    auto moveTo = [&](int target) { selected_ = rows[static_cast<size_t>(std::clamp(target, 0, last))].id; };
    const bool group = selected_ >= 0 && at(selected_).kind == PropertyKind::Group;
    const bool open = group && at(selected_).expanded;
    switch (key) {
        case GridKey::Up:
            moveTo(row < 0 ? 0 : row - 1);
            break;
        case GridKey::Down:
            moveTo(row + 1);
            break;
        case GridKey::Home:
            moveTo(0);
            break;
        case GridKey::End:
            moveTo(last);
            break;
        case GridKey::PageUp:
            moveTo(row < 0 ? 0 : row - page);
            break;
        case GridKey::PageDown:
            moveTo(row + page);
            break;
        case GridKey::Left:
            if (open) {
                SetExpanded(selected_, false);
                return true;
            }
            if (selected_ >= 0 && at(selected_).parent >= 0) selected_ = at(selected_).parent;
            break;
        case GridKey::Right:
            if (group && !open) {
                SetExpanded(selected_, true);
                return true;
            }
            if (open && !at(selected_).children.empty()) selected_ = at(selected_).children.front();
            break;
        case GridKey::Expand:
        case GridKey::Collapse:
            if (!group || open == (key == GridKey::Expand)) return false;
            SetExpanded(selected_, key == GridKey::Expand);
            return true;
    }
    return selected_ != before;
}

std::wstring ColourText(uint32_t colour) {
    wchar_t text[16];
    std::swprintf(text, 16, L"#%02X%02X%02X", colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    return text;
}

std::wstring FontText(const LogFont& font, int dpi) {
    std::wstring face(font.lfFaceName, std::find(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0'));
    if (dpi <= 0 || font.lfHeight == 0) return face;
    // A negative height is the character height, a positive one the cell's; either reads as points.
    const int points = static_cast<int>(std::lround(std::abs(static_cast<double>(font.lfHeight)) * 72.0 / dpi));
    return face + L", " + std::to_wstring(points) + L"pt";
}

}  // namespace ui
