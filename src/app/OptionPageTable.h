// The option dialog's pages and groups, in the order of its tree: what each item is called (by its
// place in a hidden label list, so that translations carry the labels), its id, its page template
// and its help page. Ids below 1000 are pages; 1000 and above are groups that show a text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

struct OptionTreeRow {
    int level;                 // 0 for a root
    int labelList;             // hidden label control 1401 to 1405
    int labelIndex;            // place of the label in that list
    int id;                    // page or group id, kept as the tree item's data
    const wchar_t* pageClass;  // null for a group
    int templateId;            // the page's dialog template; 0 for a group
    const wchar_t* helpPath;   // relative to the manual's base address
};

// A page with an object, a template and a place in Apply, whether or not the tree leads to it.
struct OptionPageInfo {
    int id;
    const wchar_t* pageClass;
    int templateId;
};

// The tree, in the order of insertion.
std::span<const OptionTreeRow> OptionTreeRows();
// Every page of the dialog, tree or not.
std::span<const OptionPageInfo> OptionPages();
// The number of labels each hidden label list must hold, for 1401 to 1405.
int RequiredLabelCount(int labelList);

constexpr int kFirstLabelList = 1401;
constexpr int kLastLabelList = 1405;
constexpr int kDefaultGroupId = 1000;
constexpr int kFirstGroupTextControl = 1900;

// The help page of an id: a page's own, else the general one.
std::wstring HelpPathOf(int id);
// The static control whose text explains a group; unknown ids explain as group 1000.
int GroupTextControlOf(int id);
// Whether an id names a page that the dialog switches to.
bool IsPageId(int id);

// One tree item to insert: its label, its id, and the index (in insertion order) of its parent, or
// -1 for a root.
struct OptionTreeItem {
    std::wstring label;
    int id;
    int parent;
};

// Builds the items of one root from the split labels of its list; false (and nothing added) when
// the list has not the required count, which the caller reports.
bool AddTreeItems(int labelList, const std::vector<std::wstring>& labels, std::vector<OptionTreeItem>& items);
